}
}
void f() { REPORT_ERROR("1"); }
) ) ;
void g() { REPORT_ERROR("2"); }
