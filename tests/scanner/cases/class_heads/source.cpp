class EXPORT A final : public B, private C<int, D> { void f() { REPORT_ERROR("1"); } };
struct alignas(16) E { void f() { REPORT_ERROR("2"); } };
class __declspec(dllexport) F { void f() { REPORT_ERROR("3"); } };
class MACRO(x) G : H { void f() { REPORT_ERROR("4"); } };
template <> struct I<int, J> { void f() { REPORT_ERROR("5"); } };
class K::L { void f() { REPORT_ERROR("6"); } };
struct [[nodiscard]] M { void f() { REPORT_ERROR("7"); } };
struct { void f() { REPORT_ERROR("8"); } } anonymous;
class N;
typedef struct O { void f() { REPORT_ERROR("9"); } } P;
void g() { REPORT_ERROR("10"); }
