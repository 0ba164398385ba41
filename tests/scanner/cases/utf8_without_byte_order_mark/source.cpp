void f() { REPORT_ERROR("Grüße 漢字"); }
