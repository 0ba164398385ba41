namespace N {
void f() {
#if A
    if (a) {
#else
    if (b) { {
        REPORT_ERROR("1");
#endif
        REPORT_ERROR("2");
    }
}
#ifdef B
void C::g() {
#elif defined(D)
void C::h() {
    REPORT_ERROR("3");
#else
    REPORT_ERROR("4");
#endif
    REPORT_ERROR("5");
}
void i() {
#if E
}
#endif
void j() { REPORT_ERROR("6"); }
}
void k() { REPORT_ERROR("7"); }
