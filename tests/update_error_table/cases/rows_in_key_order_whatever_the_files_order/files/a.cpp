void a() { REPORT_ERROR("Z"); }
