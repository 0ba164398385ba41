namespace N {
C::C() : m_a(1), m_b{2}, Base<int>{x}, m_c(f({1, 2})) { REPORT_ERROR("1"); }
C::C(int a)
    : Base(a)
    , m_d{[] { return 1; }}
{
    REPORT_ERROR("2");
}
C::C(Args... args) : Bases(args)... { REPORT_ERROR("3"); }
C::C(long) noexcept(true) : m_a{} {
    REPORT_ERROR("4");
}
C::~C() { REPORT_ERROR("5"); }
}
