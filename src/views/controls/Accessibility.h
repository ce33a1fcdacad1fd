// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Gives the views that draw themselves a role, so that a screen reader says what they are beside their names.
void installAccessibleRoles();
