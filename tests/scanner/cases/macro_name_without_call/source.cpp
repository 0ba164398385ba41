void f() {
    REPORT_ERROR;
    x = REPORT_ERROR + 1;
    REPORT_ERROR REPORT_ERROR("1");
    REPORT_ERROR
        (
        "2");
}
