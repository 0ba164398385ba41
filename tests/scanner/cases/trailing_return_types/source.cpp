namespace N {
auto C::f(int a) const -> std::vector<int> { REPORT_ERROR("1"); }
auto g() -> decltype(a() + b()) { REPORT_ERROR("2"); }
auto h() noexcept -> struct S { REPORT_ERROR("3"); }
decltype(auto) i() { REPORT_ERROR("4"); }
}
