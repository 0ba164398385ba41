void A1::A2::A3::A4::A5::A6::A7::A8::A9::A10::f() { REPORT_ERROR("1"); }
void C::f() requires T::operator bool() { REPORT_ERROR("2"); }
