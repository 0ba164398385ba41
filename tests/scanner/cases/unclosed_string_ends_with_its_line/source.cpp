void f() {
    a = "open
    REPORT_ERROR("A");
    b = 'open
    REPORT_ERROR("B");
    REPORT_ERROR("C
    );
}
