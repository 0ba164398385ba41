#include "nvx_util/assertion.h"
#include "scanner/error_visual_studio_project.h"

#include <QBuffer>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

// Any bytes can be read without a failed assertion, and excluded files are never listed.

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
        if (file.isEmpty() || file.contains("libraries"_L1, Qt::CaseInsensitive) ||
            file.contains("generatedfiles"_L1, Qt::CaseInsensitive))
            std::abort();
        Scan::sourceFilePath(u"p.vcxproj"_s, file);
    }
    return 0;
}
