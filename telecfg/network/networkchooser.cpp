// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/network/networkchooser.h"
#include "telecfg/network/countrycode.h"

#include <QPointer>

std::optional<quint32> chooseMobileNetwork(QWidget *parent, quint32 preset)
{
    // On the heap: a host that deletes the parent while the dialog is open takes the dialog
    // with it, which would be a second delete of a dialog on the stack.
    const QPointer<CountryCode> dialog = new CountryCode(parent);
    if (preset != 0)
        dialog->setNetwork(preset);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return std::nullopt;
    const quint32 network = dialog->networkId();
    delete dialog.data();
    if (!accepted)
        return std::nullopt;
    return network;
}
