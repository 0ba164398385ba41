/* REPORT_ERROR("A"); */
void f() { /* it's { a "quote */
    REPORT_ERROR(/* "B" */ "C");
    REPORT_ERROR /**/ ( "D" /* , */ );
    /* /* nested does not nest */ REPORT_ERROR("E");
    /*/ REPORT_ERROR("F"); /*/
    /***/ REPORT_ERROR("G"); /* ** /
    REPORT_ERROR("H"); */
    a = b / c; REPORT_ERROR("I"); d /= e;
    /* // */ REPORT_ERROR("J"); // /*
    REPORT_ERROR("K");
}
