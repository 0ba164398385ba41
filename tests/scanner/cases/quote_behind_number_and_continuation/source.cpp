int a = 1'0'0, b = 1\
'2'; void f() { c = 3\
'{'; REPORT_ERROR("A"); }
