namespace Größe { void Maß::größer() { REPORT_ERROR("A"); } }
void a$b() { REPORT_ERROR("B"); }
