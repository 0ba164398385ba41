void f() {
    REPORT_ERROR(
#ifdef A
        "1"
#else
        "2"
#endif
    );
    REPORT_ERROR_WITH_ARG("3",
#if B
        b);
#else
        c);
#endif
    REPORT_ERROR("4");
}
