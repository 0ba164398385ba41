void z() { REPORT_ERROR("B"); REPORT_ERROR("A"); }
