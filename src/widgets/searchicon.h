// SPDX-License-Identifier: MIT
// Icon of the search buttons.
#pragma once

#include <QIcon>

/// Returns a magnifying glass in the colour of button captions.
QIcon searchIcon();
