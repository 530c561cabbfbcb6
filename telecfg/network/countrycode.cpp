// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/network/countrycode.h"
#include "telecfg/network/countrytable.h"
#include "ui_countrycode.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>

// Row 0 of both combo boxes stands for what the table does not know: it takes any typed
// code that has no row of its own as its data, so that the combo box and the line edit agree.
// The links between combo boxes and line edits have no guard: each write runs the partner's
// slot, and the chain ends because unchanged texts and rows emit nothing.

CountryCode::CountryCode(QWidget *parent) : QDialog(parent), ui(new Ui::CountryCode)
{
    ui->setupUi(this);
    // Connected before the rows are added: adding row 0 builds the operator list.
    connect(ui->pbCancel, &QPushButton::clicked, this, &CountryCode::cancelClicked);
    connect(ui->pbOK, &QPushButton::clicked, this, &CountryCode::okClicked);
    connect(ui->cbCountry, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CountryCode::countryChosen);
    connect(ui->cbOperator, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CountryCode::operatorChosen);
    connect(ui->leOperator, &QLineEdit::textChanged, this, &CountryCode::operatorTyped);
    connect(ui->leCountry, &QLineEdit::textChanged, this, &CountryCode::countryTyped);
    if (countryTable.isEmpty())
        fillCountryTable();

    struct Country
    {
        QString text;
        quint32 code;
    };
    QVector<Country> countries;
    countries.reserve(countryTable.size());
    for (auto it = countryTable.cbegin(); it != countryTable.cend(); ++it)
        countries.append({QStringLiteral("%1 (%2)").arg(it->name).arg(it.key()), it.key()});
    QCollator collator(QLocale(QLocale::Polish, QLocale::Poland));
    std::stable_sort(countries.begin(), countries.end(), [&](const Country &a, const Country &b) {
        return collator.compare(a.text, b.text) < 0;
    });

    // Row 0 first: adding it selects it, which builds the operator list's two fixed rows.
    ui->cbCountry->addItem(tr("Nieznany"), int(CodeUnknown));
    for (const Country &country : countries)
        ui->cbCountry->addItem(country.text, country.code);
    updateOk();
}

CountryCode::~CountryCode() = default;

void CountryCode::setNetwork(quint32 networkId)
{
    const quint32 mcc = networkId >> 10;
    const quint32 mnc = networkId & 0x3FF;
    ui->leCountry->setText(mcc <= 999 ? QString::number(mcc) : QString());
    if (mnc == CodeAll)
        ui->leOperator->setText(QStringLiteral("*"));
    else
        ui->leOperator->setText(mnc < CodeAll ? QString::number(mnc) : QString());
}

quint32 CountryCode::networkId() const
{
    const QString op = ui->leOperator->text();
    const quint32 mnc = op == QLatin1String("*") ? CodeAll
                        : op.isEmpty()           ? CodeUnknown
                                                 : op.toUInt(nullptr, 10);
    return (ui->leCountry->text().toUInt(nullptr, 10) << 10) | (mnc & 0x3FF);
}

void CountryCode::cancelClicked()
{
    reject();
}

void CountryCode::okClicked()
{
    accept();
}

void CountryCode::countryChosen(int)
{
    QComboBox *operators = ui->cbOperator;
    operators->clear();
    operators->addItem(tr("Nieznany"), int(CodeUnknown));
    operators->addItem(tr("Wszystkie"), int(CodeAll));

    const quint32 mcc = ui->cbCountry->currentData().toUInt();
    const auto country = countryTable.constFind(mcc);
    if (country != countryTable.constEnd()) {
        // By name, each name once per code that holds it: a name of k codes gives its k rows
        // k times over. Deliberate; selection by code takes the first of them.
        QStringList names = country->operators.values();
        names.sort(Qt::CaseInsensitive);
        for (const QString &name : names) {
            QList<quint32> codes = country->operators.keys(name);
            std::sort(codes.begin(), codes.end());
            for (quint32 code : codes)
                operators->addItem(QStringLiteral("(%1) %2").arg(QString::number(code), name),
                                   code);
        }
    }

    // On the text, not the data: row 0 keeps its name whatever code it holds.
    if (ui->cbCountry->currentText() == tr("Nieznany")) {
        operators->setCurrentIndex(0);
        operators->setEnabled(false);
    } else {
        operators->setEnabled(true);
    }
    ui->leCountry->setText(mcc == CodeUnknown ? QString() : QString::number(mcc));
}

void CountryCode::operatorChosen(int)
{
    // With no current row (while the list is cleared) this reads 0 and writes "0" for a moment.
    const quint32 mnc = ui->cbOperator->currentData().toUInt();
    if (mnc == CodeUnknown)
        ui->leOperator->setText(QString());
    else if (mnc == CodeAll)
        ui->leOperator->setText(QStringLiteral("*"));
    else
        ui->leOperator->setText(QString::number(mnc));
}

void CountryCode::operatorTyped(const QString &text)
{
    const quint32 code = text == QLatin1String("*") ? CodeAll
                         : text.isEmpty()           ? CodeUnknown
                                                    : text.toUInt(nullptr, 10);
    const quint32 mcc = ui->cbCountry->currentData().toUInt();
    const auto country = countryTable.constFind(mcc);
    if (country == countryTable.constEnd() ||
        (!country->operators.contains(code) && code != CodeAll))
        ui->cbOperator->setItemData(0, code);
    // -1 passes on as it is; it only occurs while the list is empty.
    ui->cbOperator->setCurrentIndex(ui->cbOperator->findData(code));
    updateOk();
}

void CountryCode::countryTyped(const QString &text)
{
    const quint32 mcc = text.toUInt(nullptr, 10);
    if (!countryTable.contains(mcc))
        ui->cbCountry->setItemData(0, mcc);
    const int row = ui->cbCountry->findData(mcc);
    ui->cbCountry->setCurrentIndex(row > 0 ? row : 0);
    updateOk();
}

void CountryCode::updateOk()
{
    ui->pbOK->setEnabled(!ui->leOperator->text().isEmpty() && !ui->leCountry->text().isEmpty());
}
