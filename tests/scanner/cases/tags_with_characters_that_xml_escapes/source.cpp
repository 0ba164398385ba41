void f() { REPORT_ERROR("a < b && \"c\" > 'd'"); REPORT_ERROR("tab\tline\nreturn\r"); }
