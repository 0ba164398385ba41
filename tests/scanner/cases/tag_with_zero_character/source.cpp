void f() {

    REPORT_ERROR_WITH_ARG("zero\0", 1);
}
