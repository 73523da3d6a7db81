// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/native_background.h"

#include <QColor>
#include <QGuiApplication>
#include <QLibrary>
#include <QScreen>
#include <QWindow>
#include <cstdint>

void setNativeBackground(const QWindow& window, const QColor& colour)
{
#if QT_CONFIG(xcb)
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // With other depths a pixel is no RGB value.
    if (x11 == nullptr || window.screen()->depth() != 24)
        return;
    // Qt's plugin for X11 has loaded the library; the game does not link it for one call.
    using ChangeAttributes =
        unsigned(xcb_connection_t*, std::uint32_t window, std::uint32_t mask, const void* values);
    const QByteArray name = QByteArrayLiteral("xcb_change_window_attributes");
    auto* const changeAttributes = reinterpret_cast<ChangeAttributes*>(
        QLibrary::resolve(QStringLiteral("xcb"), 1, name.constData()));
    constexpr std::uint32_t backPixel = 2; // XCB_CW_BACK_PIXEL
    const std::uint32_t pixel = colour.rgb();
    if (changeAttributes != nullptr)
        changeAttributes(x11->connection(), std::uint32_t(window.winId()), backPixel, &pixel);
#endif
}
