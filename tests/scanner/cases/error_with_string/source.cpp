void f() { REPORT_ERROR("Tag"); }
