// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Everything telecfg offers its hosts, in one include.

// Everything telecfg offers its hosts, in one include.
#include "telecfg/collections/cfglisteditor.h"
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/mainconfig.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/config/parametertypes.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgdoublespinbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"
#include "telecfg/controls/statecolours.h"
#include "telecfg/controls/visibility.h"
#include "telecfg/dialogs/cmddialog.h"
#include "telecfg/dialogs/dualinputdlg.h"
#include "telecfg/dialogs/gui.h"
#include "telecfg/dialogs/skipreaddatadialog.h"
#include "telecfg/dialogs/statuslabel.h"
#include "telecfg/firmware/checksums.h"
#include "telecfg/firmware/firmware.h"
#include "telecfg/form/changereview.h"
#include "telecfg/form/formbinder.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/formundo.h"
#include "telecfg/form/parameterbrowser.h"
#include "telecfg/form/parameterfilter.h"
#include "telecfg/form/parametermodel.h"
// initDefaultImages() is in the static library telecfg::images, which a host links beside.
#include "telecfg/images/defaultimages.h"
#include "telecfg/import/readblockconfigwizard.h"
#include "telecfg/network/countrytable.h"
#include "telecfg/network/networkchooser.h"
#include "telecfg/translations.h"
#include "telecfg/version.h"
