#include "nvx_util/assertion.h"
#include "scanner/error_visual_studio_project.h"

#include <QBuffer>

#include <cstdlib>

// Any bytes are read to an end without a failed assertion, and no file that is not to be scanned is listed.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const Nvx::Util::AssertionListener listener([](const Nvx::Util::AssertionFailure &) { std::abort(); });
    QBuffer buffer;
    buffer.setData(reinterpret_cast<const char *>(bytes), static_cast<int>(size));
    buffer.open(QIODevice::ReadOnly);
    const auto project = Scan::readVisualStudioProject(buffer);
    if (!project)
        return 0;
    for (const QString &file : project->sourceFiles) {
        if (file.isEmpty() || file.contains(QLatin1String("libraries"), Qt::CaseInsensitive) ||
            file.contains(QLatin1String("generatedfiles"), Qt::CaseInsensitive))
            std::abort();
        Scan::sourceFilePath(QStringLiteral("p.vcxproj"), file);
    }
    return 0;
}
