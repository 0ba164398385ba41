namespace N {
class C {
public:
    void f() { REPORT_ERROR("1"); }
    struct D {
        void g() { REPORT_ERROR("2"); }
    };
    void h() const { REPORT_ERROR("3"); }
private:
    union U { void i() { REPORT_ERROR("4"); } } u;
    void j() { REPORT_ERROR("5"); }
};
void k() { REPORT_ERROR("6"); }
}
