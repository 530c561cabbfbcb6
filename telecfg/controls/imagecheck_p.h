// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

// Internal to the library. The check box, radio button and combo box style sheets name
// images (":/images/..."), which the host ships or takes from telecfg::images. Without them
// the indicators and the arrow are simply not drawn, so the first time any such control is
// shown the images its sheet names are looked for, and one warning per process says which
// are missing and how to get them. A host that ships its own images hears nothing.
void checkImagesWhenShown(QWidget *control);
