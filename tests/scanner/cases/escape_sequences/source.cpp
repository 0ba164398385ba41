void f() {
    REPORT_ERROR("a\tb\nc\\d\"e\'f\?g");
    REPORT_ERROR("\101\x42\u0043\U00000044\u{45}\x{46}\o{107}");
    REPORT_ERROR("\u00e4\U0001F600");
    REPORT_ERROR("\xc3\xa4" "\xc3" "\xb6");
    REPORT_ERROR(L"\xe4\xd83d\xde00");
    REPORT_ERROR("\xe4 in the code page");
    REPORT_ERROR("\q\1018\x\u");
}
