class C {
    PROPERTY(a) C() { REPORT_ERROR("A"); }
    class D {
        PROPERTY(b) D() { REPORT_ERROR("B"); }
    };
    PROPERTY(c) C(int) { REPORT_ERROR("C"); }
};
