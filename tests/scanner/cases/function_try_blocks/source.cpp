namespace N {
void C::f() try { REPORT_ERROR("1"); } catch (const A &a) { REPORT_ERROR("2"); } catch (...) { REPORT_ERROR("3"); }
C::C() try : m_a(1), m_b{2} { REPORT_ERROR("4"); } catch (...) { REPORT_ERROR("5"); }
void g() { try { h(); } catch (...) { REPORT_ERROR("6"); } REPORT_ERROR("7"); }
}
