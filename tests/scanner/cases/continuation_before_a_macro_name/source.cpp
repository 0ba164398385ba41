void f() { g; \
REPORT_ERROR("A"); \
\
REPORT_MESSAGE("B"); }
