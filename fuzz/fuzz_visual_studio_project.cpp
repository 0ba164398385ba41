#include "nvx_util/assertion.h"
#include "scanner/error_visual_studio_project.h"
#include "scanner/project_folders.h"

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

// The bytes are a project, and a file that it may import. They can be read without a failed assertion;
// excluded files are never listed, and every source has either a path or a problem.

namespace {

class Folders : public Scan::ProjectFolders
{
public:
    explicit Folders(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    std::vector<Entry> entries(const QString &folder) const override
    {
        if (folder == "/p"_L1)
            return {{u"a.cpp"_s}, {u"B.cpp"_s}, {u"x.props"_s}, {u"src"_s, EntryKind::Folder}};
        if (folder == "/p/src"_L1)
            return {{u"c.cpp"_s}, {u"loop"_s, EntryKind::LinkedFolder}, {u"d"_s, EntryKind::Folder}};
        return {};
    }

    Nvx::Util::Result<QByteArray> contents(const QString &path) const override
    {
        const qsizetype half = m_bytes.indexOf('\0');
        return path.endsWith(".props"_L1) && half >= 0 ? m_bytes.mid(half + 1) : m_bytes.left(half);
    }

private:
    QByteArray m_bytes;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const Nvx::Util::AssertionListener listener([](const Nvx::Util::AssertionFailure &) { std::abort(); });
    const Folders folders(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<int>(size)));
    const auto project = Scan::readVisualStudioProject(u"/p/p.vcxproj"_s, folders);
    if (!project)
        return 0;
    for (const Scan::ProjectSource &source : project->sources) {
        if (source.name.isEmpty() || source.name.contains("libraries"_L1, Qt::CaseInsensitive) ||
            source.name.contains("generatedfiles"_L1, Qt::CaseInsensitive))
            std::abort();
        if (source.path.isEmpty() == source.problem.isEmpty())
            std::abort();
    }
    return 0;
}
