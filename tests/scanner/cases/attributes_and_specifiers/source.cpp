[[nodiscard]] int f() { REPORT_ERROR("1"); }
[[deprecated("use f(1) {")]] void g [[gnu::cold]] () { REPORT_ERROR("2"); }
__attribute__((visibility("default"))) void h() { REPORT_ERROR("3"); }
__declspec(dllexport) int __stdcall i(int a) { REPORT_ERROR("4"); }
struct C { explicit(true) C(int a) { REPORT_ERROR("5"); } virtual void j() const && noexcept(noexcept(k())) override final { REPORT_ERROR("6"); } };
alignas(8) static int l[] = {1, 2};
void m() throw(A, B) { REPORT_ERROR("7"); }
void n() Q_DECL_NOEXCEPT_EXPR(true) { REPORT_ERROR("8"); }
