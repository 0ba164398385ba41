void f() {
  REPORT\
_ERROR("A");
  REPORT_ERROR_WITH\
_ARG("B", x);
  R\
\
EPORT_MESSAGE("C");
}
