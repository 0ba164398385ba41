void g() { REPORT_ERROR("G"); }
