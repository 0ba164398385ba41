// Stands in for a launcher that is a plain library; it returns the name of its CAD system.

extern "C" __declspec(dllexport) const wchar_t *launcherOf();

const wchar_t *launcherOf()
{
    return NVX_SAMPLE_SYSTEM;
}
