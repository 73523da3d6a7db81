// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTest>

/// The table of a test: declares its columns, then adds a row at each call.
///
///     const Rows<qint64, QSize> row{"amountCards", "size"};
///     row("none", 0, QSize(640, 480));
template <class... Columns>
class Rows {
    template <class>
    using Name = const char*;

public:
    explicit Rows(Name<Columns>... names) { (QTest::addColumn<Columns>(names), ...); }
    void operator()(const char* name, const Columns&... cells) const
    {
        (QTest::newRow(name) << ... << cells);
    }
};
