// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos/protocol/descriptor.h"

#include <unistd.h>

Descriptor::~Descriptor()
{
    if (isOpen())
        ::close(m_descriptor);
}
