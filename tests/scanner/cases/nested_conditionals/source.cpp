void f() {
#if A
# if B
    {
# else
    { {
# endif
    REPORT_ERROR("1");
    }
#else
    } } }
#endif
    REPORT_ERROR("2");
}
void g() { REPORT_ERROR("3"); }
