// SPDX-License-Identifier: MIT
// The sign on buttons that search.
#pragma once

#include <QIcon>

/// A magnifying glass in the desktop's text colour.
QIcon searchIcon();
