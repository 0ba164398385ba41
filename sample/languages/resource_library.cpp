// Stands for a library of language resources: it tells which language it is for.

extern "C" __declspec(dllexport) const wchar_t *resourceLanguage();

const wchar_t *resourceLanguage()
{
    return NVX_SAMPLE_LOCALE;
}
