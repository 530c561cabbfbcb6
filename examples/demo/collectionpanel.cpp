// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "collectionpanel.h"

#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/network/networkchooser.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

CollectionPanel::CollectionPanel(int parameterRef, const ParameterTable::Presentation &parameter,
                                 MainConfigIFace *host, QWidget *parent)
    : QWidget(parent), table(host), ref(parameterRef)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (parameter.control == QLatin1String("table")) {
        tableEditor = new CfgTableWidget(this);
        tableEditor->setMinimumHeight(190);
        tableEditor->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        layout->addWidget(tableEditor);
    } else {
        list = new CfgListWidget(this);
        list->setMinimumHeight(130);
        layout->addWidget(list);
    }

    buttons = new QWidget(this);
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(buildInput(host->object(ref)), 1);
    addButton = new QPushButton(networks ? tr("Dodaj sieć…") : tr("Dodaj"), buttons);
    auto *removeButton = new QPushButton(tr("Usuń"), buttons);
    row->addWidget(addButton);
    row->addWidget(removeButton);
    connect(addButton, &QPushButton::clicked, this, &CollectionPanel::add);
    connect(removeButton, &QPushButton::clicked, this, &CollectionPanel::removeSelected);
    if (list) {
        auto *removeAllButton = new QPushButton(tr("Usuń wszystkie"), buttons);
        row->addWidget(removeAllButton);
        connect(removeAllButton, &QPushButton::clicked, this, &CollectionPanel::removeAll);
    }
    layout->addWidget(buttons);
    setObjectName(QStringLiteral("panel_%1").arg(ref));
    (list ? static_cast<QWidget *>(list) : tableEditor)
        ->setObjectName(QStringLiteral("cfg_%1").arg(ref));
    buttons->setObjectName(QStringLiteral("cfg_%1_buttons").arg(ref));
}

QWidget *CollectionPanel::buildInput(const MainConfigObject &object)
{
    if (tableEditor) {
        auto *fields = new QWidget(buttons);
        auto *row = new QHBoxLayout(fields);
        row->setContentsMargins(0, 0, 0, 0);
        for (const QString &title : object.columnTitles) {
            auto *input = new QLineEdit(fields);
            input->setPlaceholderText(title);
            row->addWidget(input);
            inputs.append(input);
        }
        return fields;
    }
    if (object.type == 29) {
        networks = true;
        return new QWidget(buttons);
    }
    if (object.type == 24 || object.type == 8) {
        // Named values are added by name; the host turns the name into the number.
        names = new QComboBox(buttons);
        names->setEditable(true);
        for (const NamedUInt &named : object.valueNames.value<QList<NamedUInt>>())
            names->addItem(named.name);
        for (const NamedUShort &named : object.valueNames.value<QList<NamedUShort>>())
            names->addItem(named.name);
        return names;
    }
    auto *input = new QLineEdit(buttons);
    input->setPlaceholderText(tr("Nowy identyfikator"));
    inputs.append(input);
    return input;
}

QVariant CollectionPanel::newElement()
{
    if (networks) {
        // The library's country and operator dialog gives the mobile network id.
        const std::optional<quint32> network = chooseMobileNetwork(this);
        return network ? QVariant(uint(*network)) : QVariant();
    }
    if (names)
        return names->currentText().isEmpty() ? QVariant() : QVariant(names->currentText());
    QStringList texts;
    for (QLineEdit *input : std::as_const(inputs))
        texts.append(input->text().trimmed());
    if (texts.value(0).isEmpty())
        return QVariant();
    for (QLineEdit *input : std::as_const(inputs))
        input->clear();
    return tableEditor ? QVariant(texts) : QVariant(texts.first());
}

void CollectionPanel::add()
{
    const QVariant element = newElement();
    if (!element.isValid())
        return;
    if (list)
        list->addValue(element, ref);
    else
        tableEditor->addValue(element, ref);
}

void CollectionPanel::removeSelected()
{
    // The list answers whether room is left; adding is possible again then.
    if (list) {
        addButton->setEnabled(list->remove(ref));
    } else {
        tableEditor->remove(ref);
        tableEditor->updateControl(0); // the table does not repaint after a removal
    }
}

void CollectionPanel::removeAll()
{
    addButton->setEnabled(list->removeAll(ref));
}
