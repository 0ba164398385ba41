void f() {
    a = '"'; REPORT_ERROR("A");
    b = '\''; REPORT_ERROR("B");
    c = '{'; d = L'}'; e = u8'{'; g = '\\';
    REPORT_ERROR("C");
}
char h = '{';
char i = '"';
void j(char k = '(') { REPORT_ERROR("D"); }
