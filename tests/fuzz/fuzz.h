// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// What a fuzz target does with an input. It ends the process if a rule is broken, as same() does.
void tryInput(const QByteArray &input);
