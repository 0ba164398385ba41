namespace N {
void C::f()
{
    auto g = [this](int a) mutable -> int { REPORT_ERROR("1"); return 1; };
    connect(a, &A::b, [=] { REPORT_ERROR("2"); if (x) { REPORT_ERROR("3"); } });
    REPORT_ERROR("4");
}
void h(std::function<void()> i = [] { REPORT_ERROR("5"); }) { REPORT_ERROR("6"); }
auto j = [](int a) { REPORT_ERROR("7"); };
void k() { REPORT_ERROR("8"); }
}
