#include "setup/product_values.h"

#include "nvx_util/product.h"

QString machineProductKey()
{
    return QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\%1\\%2")
        .arg(Nvx::Product::maker, Nvx::Product::name);
}

QString userProductKey()
{
    return QStringLiteral("HKEY_CURRENT_USER\\Software\\%1\\%2\\%3")
        .arg(Nvx::Product::maker, Nvx::Product::name, Nvx::Product::version);
}

QList<RegistryValue> machineValues(const ProductRecord &record)
{
    const QString product = machineProductKey();
    const QString version = product + QLatin1Char('\\') + Nvx::Product::version;
    return {
        {product, QStringLiteral("CurrentVersion"), Nvx::Product::version},
        {version, QStringLiteral("AnalyzeDirectory"), record.analyzeDirectory},
        {version, QStringLiteral("InstallationDirectory"), record.installDir},
        {version, QStringLiteral("Locale"), record.locale},
        {version, QStringLiteral("master"),
         record.registry64 ? QStringLiteral("Win64") : QStringLiteral("Win32")},
        {version, QStringLiteral("release"), Nvx::Product::release},
        {version, QStringLiteral("productline"), QStringLiteral("KORVA")},
    };
}

QList<RegistryValue> userValues(const QString &locale)
{
    const QString services = userProductKey() + QStringLiteral("\\WebServices");
    const QString center = services + QStringLiteral("\\CommunicationCenter");
    constexpr auto never = static_cast<quint32>(-1);
    return {
        {services, QStringLiteral("CountryCode"), countryCodeOf(locale)},
        {center, QStringLiteral("PollingFrequency"), never},
        {center, QStringLiteral("LastUpdateTimeLoWord"), quint32(1329242409)},
        {center, QStringLiteral("LastUpdateTimeHiWord"), quint32(0)},
        {center, QStringLiteral("OutOfBoxWizardCompletedStep"), quint32(3)},
        {center, QStringLiteral("DataState"), quint32(0)},
        {center, QStringLiteral("EnableBubbleNotification"), quint32(0)},
    };
}

QString countryCodeOf(const QString &locale)
{
    const QString country = locale.mid(3, 2).toUpper();
    return country.isEmpty() ? QStringLiteral("US") : country;
}
