namespace N {
void A::B::f() { REPORT_ERROR("A"); }
}
void M::C::g() { REPORT_ERROR("B"); }
void ::M::C::h() { REPORT_ERROR("C"); }
