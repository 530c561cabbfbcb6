// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/network/networkchooser.h"
#include "telecfg/network/countrycode.h"

std::optional<quint32> chooseMobileNetwork(QWidget *parent, quint32 preset)
{
    CountryCode dialog(parent);
    if (preset != 0)
        dialog.setNetwork(preset);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.networkId();
}
