#include "cad/tamsel/tamsel_manifest.h"

#include "nvx_util/product.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

QByteArray tamselManifest(const QString &installDir)
{
    const QString assembly = installDir + u"\\Launchers\\Tamsel\\NVX_2017_Tamsel2017.dll"_s;
    const QString text = u"<?xml version=\"1.0\" encoding=\"utf-16\" standalone=\"no\"?>\n"
                         "<TamselAddIns>\n"
                         "<AddIn Type=\"Application\">\n"
                         "<Name>%1</Name>\n"
                         "<Assembly>%2</Assembly>\n"
                         "<AddInId>D678F341-A94D-43BB-AD6F-8E0E9DABA31A</AddInId>\n"
                         "<VendorId>Velmora, Inc.</VendorId>\n"
                         "<FullClassName>Kelvane_2017.NvxApplication</FullClassName>\n"
                         "</AddIn>\n"
                         "</TamselAddIns>\n"_s.arg(Product::fullName, assembly);
    return text.toUtf8().left(text.size());
}

} // namespace Nvx::Cad
