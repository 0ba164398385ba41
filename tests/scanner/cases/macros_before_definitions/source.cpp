Q_DECLARE_METATYPE(A)
void f() { REPORT_ERROR("1"); }
Q_LOGGING_CATEGORY(log, "a.b")
C::C(int a) : m_a(a) { REPORT_ERROR("2"); }
BEGIN_MESSAGE_MAP(C, D)
    ON_COMMAND(ID_X, OnX)
    ON_COMMAND(ID_Y, OnY)
END_MESSAGE_MAP()
void C::OnX() { REPORT_ERROR("3"); }
Q_GLOBAL_STATIC(A, b)
namespace N {
IMPLEMENT_DYNAMIC(C, D)
struct E { void g() { REPORT_ERROR("4"); } };
}
TEST(Suite, Name) { REPORT_ERROR("5"); }
