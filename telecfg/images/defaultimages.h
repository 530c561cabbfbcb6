// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The default images of the control style sheets (static library telecfg::images).

/// Makes the default images the style sheets of the check box, radio button and combo box name
/// available the style sheets of the check box, radio button and combo box name
/// (":/images/checkbox_grey_checked.png", ":images/arrow.png", ... : docs/controls.md lists
/// them). They live in the optional static library telecfg::images, which a host links when
/// it ships no images of its own, and then calls this once before showing a form. The
/// library's objects are linked into the host only through this call, so a host with its own
/// ":/images/..." resources leaves both out and keeps its images. Calling it again does
/// nothing more.
void initDefaultImages();
