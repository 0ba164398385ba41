#pragma once

#include "nvx_util/assertion.h"

#include <QStringList>

/// The assertions that failed in this thread while this object existed, each as "CONDITION in UNIT".
class RecordedAssertions
{
public:
    const QStringList &list() const { return m_list; }

private:
    QStringList m_list;
    Nvx::Util::AssertionListener m_listener{[this](const Nvx::Util::AssertionFailure &failure) {
        m_list += failure.condition + QStringLiteral(" in ") + failure.unit;
    }};
};
