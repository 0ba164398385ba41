namespace N {
void C::f() { REPORT_ERROR("A"); }
}
