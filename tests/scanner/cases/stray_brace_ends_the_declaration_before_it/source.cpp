namespace N }
void f() { REPORT_ERROR("A"); }
int a = }
void g() { REPORT_ERROR("B"); }
