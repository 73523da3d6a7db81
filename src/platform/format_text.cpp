// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/format_text.h"

QString fillFormat(QStringView format, std::initializer_list<FormatArgument> arguments)
{
    QString filled;
    filled.reserve(format.size());
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] == u'%' && i + 1 < format.size()) {
            const int place = format[i + 1].unicode() - u'0';
            if (place >= 1 && place <= 9 && place <= static_cast<int>(arguments.size())) {
                filled += (arguments.begin() + place - 1)->text();
                ++i;
                continue;
            }
        }
        filled += format[i];
    }
    return filled;
}
