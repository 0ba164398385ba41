// Stands in for a library of language resources; it returns its language.

extern "C" __declspec(dllexport) const wchar_t *resourceLanguage();

const wchar_t *resourceLanguage()
{
    return NVX_SAMPLE_LOCALE;
}
