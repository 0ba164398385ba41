namespace N {
void C::f(
#ifdef A
    int a)
#else
    long a, int b)
#endif
{
    REPORT_ERROR("1");
}
#if B
void g()
#else
void h()
#endif
{ REPORT_ERROR("2"); }
}
