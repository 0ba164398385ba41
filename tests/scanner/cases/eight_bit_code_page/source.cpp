// grüße
void f() { REPORT_ERROR("café “quoted” €"); }
