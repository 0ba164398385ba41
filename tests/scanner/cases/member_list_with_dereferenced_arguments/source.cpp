C::C(P &p) : B(*new D, p), m_a(&p) { REPORT_ERROR("1"); }
void C::f() { REPORT_ERROR("2"); }
