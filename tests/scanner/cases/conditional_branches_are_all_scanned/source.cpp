void f() {
#if A
    REPORT_ERROR("1");
#elif B
    REPORT_ERROR("2");
#else
    REPORT_ERROR("3");
#endif
#ifdef C
    REPORT_ERROR("4");
#elifdef D
    REPORT_ERROR("5");
#endif
#ifndef E
    REPORT_ERROR("6");
#endif
#if 0
    REPORT_ERROR("7");
#endif
}
