class C {
    void REPORT_MESSAGE(const char *tag) { log(tag); }
    void f() { REPORT_MESSAGE("A"); this->REPORT_ERROR("B"); ns::REPORT_ERROR("C"); }
};
