int a = 1'000'000; void f() { b = 0xFF'FF; REPORT_ERROR("A"); c = 1'0; REPORT_ERROR("B"); }
constexpr auto d = 0b1010'1010u; void g() { REPORT_ERROR("C"); }
