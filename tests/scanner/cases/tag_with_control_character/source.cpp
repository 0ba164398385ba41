void f() {
    REPORT_ERROR("fine");
    REPORT_ERROR("bell \a");
    REPORT_ERROR("after");
}
