void f() {
    ASK_QUESTION("A", Yes | No, No, parent;
}
void g() { REPORT_ERROR("B"); ) }
void h() {
    ASK_QUESTION("C", [] { if (x) { } return Yes; }(), No;
}
void i() { REPORT_ERROR("D"); ) }
