#include "setup/product_values.h"

#include "nvx_util/product.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Setup {

QString machineProductKey()
{
    return u"HKEY_LOCAL_MACHINE\\Software\\%1\\%2"_s.arg(Product::maker, Product::name);
}

QString userProductKey()
{
    return u"HKEY_CURRENT_USER\\Software\\%1\\%2\\%3"_s.arg(Product::maker, Product::name, Product::version);
}

QList<RegistryValue> machineValues(const ProductRecord &record)
{
    const QString product = machineProductKey();
    const QString version = product + u'\\' + Product::version;
    return {
        {product, u"CurrentVersion"_s, Product::version},
        {version, u"AnalyzeDirectory"_s, record.analyzeDirectory},
        {version, u"InstallationDirectory"_s, record.installDir},
        {version, u"Locale"_s, record.locale},
        {version, u"master"_s, record.registry64 ? u"Win64"_s : u"Win32"_s},
        {version, u"release"_s, Product::release},
        {version, u"productline"_s, u"KORVA"_s},
    };
}

QList<RegistryValue> userValues(const QString &locale)
{
    const QString services = userProductKey() + u"\\WebServices"_s;
    const QString center = services + u"\\CommunicationCenter"_s;
    constexpr auto never = static_cast<quint32>(-1);
    return {
        {services, u"CountryCode"_s, countryCodeOf(locale)},
        {center, u"PollingFrequency"_s, never},
        {center, u"LastUpdateTimeLoWord"_s, quint32(1329242409)},
        {center, u"LastUpdateTimeHiWord"_s, quint32(0)},
        {center, u"OutOfBoxWizardCompletedStep"_s, quint32(3)},
        {center, u"DataState"_s, quint32(0)},
        {center, u"EnableBubbleNotification"_s, quint32(0)},
    };
}

QString countryCodeOf(const QString &locale)
{
    const QString country = locale.mid(3, 2).toUpper();
    return country.isEmpty() ? u"US"_s : country;
}

std::optional<QString> uninstallCommandIn(const QString &command, const QString &locale)
{
    const auto option = "/LANG"_L1;
    const qsizetype position = command.indexOf(option);
    if (position <= 0)
        return std::nullopt;
    return command.left(position + option.size() + 1) + locale;
}

} // namespace Nvx::Setup
