// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class CountryCode;
}

// Entry of one mobile network: a country and an operator, each picked by name from the
// built-in table (telecfg/network/countrytable.h) or typed as a code, the combo box and the
// line edit of each following the other. Codes the table does not know are accepted as
// typed; OK is enabled only while both code fields hold text. Internal to the library.
//
//     CountryCode dialog(parent);
//     dialog.setNetwork(current);               // optional preset
//     if (dialog.exec() == QDialog::Accepted)
//         current = dialog.networkId();
//
// The constructor fills the country table when it is still empty.
class CountryCode : public QDialog
{
    Q_OBJECT

public:
    explicit CountryCode(QWidget *parent = nullptr);
    ~CountryCode() override;

    // Shows the country and network code of a mobile network id: network code 998 as "*",
    // 999 as an empty field. Codes above 999 leave their field empty.
    void setNetwork(quint32 networkId);
    // The mobile network id the two code fields make: "*" is 998, an empty operator field
    // 999, text that is no number 0. Meant to be read after the dialog is accepted.
    quint32 networkId() const;

public slots:
    void cancelClicked();
    void okClicked();
    void countryChosen(int index);
    void operatorChosen(int index);
    void operatorTyped(const QString &text);
    void countryTyped(const QString &text);

private:
    void updateOk();

    std::unique_ptr<Ui::CountryCode> ui;
};
