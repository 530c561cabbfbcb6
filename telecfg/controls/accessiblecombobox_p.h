// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

// Internal to the library. On some platforms the toolkit names a combo box after its current
// item and leaves the label to a relation, which not every screen reader follows; a bound
// combo box is named after its label like every other bound control. Installs, once, the
// accessibility factory that gives CfgComboBox (and its subclasses) such a face.
void installComboBoxAccessibility();
