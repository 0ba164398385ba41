void f() { REPORT_ERROR("aÿb"); }
