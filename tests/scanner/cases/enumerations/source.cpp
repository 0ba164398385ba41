namespace N {
enum E { A, B = 1 << 2, C };
enum class F : unsigned char { A };
enum struct [[deprecated]] G;
class K {
    enum { X = sizeof(int) };
    void f() { REPORT_ERROR("1"); }
};
void K::g() { enum { Y }; REPORT_ERROR("2"); }
}
