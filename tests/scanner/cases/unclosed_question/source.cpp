void f() {
    ASK_QUESTION("A", Yes | No, No;
}
void g() { REPORT_ERROR("B"); ASK_QUESTION("C", Ok, Ok); }
