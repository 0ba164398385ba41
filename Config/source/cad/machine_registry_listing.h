#pragma once

#include "cad/registry_listing.h"

namespace Nvx::Cad {

/// The registry of the machine.
class MachineRegistryListing final : public RegistryListing
{
public:
    QList<ListedValue> valuesBelow(const QString &key) const override;
    QString valueOf(const QString &key, const QString &valueName) const override;
};

} // namespace Nvx::Cad
