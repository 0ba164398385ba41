namespace n {
// c
void f()
{
  REPORT_ERROR("A");
  REPORT_ERROR("B" \
 "C");
}
}
