void b() { REPORT_ERROR("B"); }
