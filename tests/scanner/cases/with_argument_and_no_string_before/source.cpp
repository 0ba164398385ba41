void f() { REPORT_ERROR_WITH_ARG(tag, 1); }
