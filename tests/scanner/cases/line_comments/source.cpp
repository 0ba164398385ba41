// REPORT_ERROR("A");
void f() { // it's { a "quote
    // REPORT_ERROR("B"); \
    REPORT_ERROR("C");
    REPORT_ERROR( // why "D"
        "E" // "F"
    );
    /// path C:\
    REPORT_ERROR("G");
    REPORT_ERROR("H"); //
    //
    REPORT_ERROR("I");
}
