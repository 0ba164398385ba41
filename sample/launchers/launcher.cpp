// Stands for a launcher that a CAD system loads as a plain library: it tells for which.

extern "C" __declspec(dllexport) const wchar_t *launcherOf();

const wchar_t *launcherOf()
{
    return NVX_SAMPLE_SYSTEM;
}
