// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/collation.h"

#include <QCollator>

bool sortsBefore(QStringView left, QStringView right)
{
    static const QCollator collator = [] {
        QCollator caseInsensitive;
        caseInsensitive.setCaseSensitivity(Qt::CaseInsensitive);
        caseInsensitive.setNumericMode(false);
        return caseInsensitive;
    }();
    return collator.compare(left, right) < 0;
}
