void f() {
    REPORT_ERROR("one \
two");
    REPORT_ERROR("three");
}
