DECLARE_TABLE(t) = { 1, 2 }
void f() { REPORT_ERROR("1"); }
UNKNOWN int x { 1 }
void C::g() const { REPORT_ERROR("2"); }
