void f() {
    REPORT_ERROR; g("A");
    (REPORT_ERROR), g("B");
    REPORT_ERROR("C");
}
