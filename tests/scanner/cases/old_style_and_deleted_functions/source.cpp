class C {
    C() = default;
    C(const C &) = delete;
    virtual void f() = 0;
    C &operator=(const C &) = delete;
    int g() { REPORT_ERROR("1"); }
    friend bool operator==(const C &a, const C &b) { REPORT_ERROR("2"); }
    static C make(int a = 1, std::vector<int> b = {1, 2}) { REPORT_ERROR("3"); }
};
int main(int argc, char **argv) { REPORT_ERROR("4"); }
