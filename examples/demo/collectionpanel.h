// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/parametertable.h"

#include <QWidget>

class CfgListWidget;
class CfgTableWidget;
class QComboBox;
class QHBoxLayout;
class QLineEdit;
class QPushButton;

// A collection editor with the buttons a host wires to it: an input for the new element,
// "Dodaj", "Usuń" and "Usuń wszystkie". The input suits the element type: free text for
// identifiers, the known names for named keys, the country and operator dialog for
// mobile networks, and one field per column for a table. The editor is named cfg_<ref> and
// the buttons cfg_<ref>_buttons, so the form binder binds the one and hides the other with it.
class CollectionPanel : public QWidget
{
    Q_OBJECT

public:
    CollectionPanel(int ref, const ParameterTable::Presentation &parameter, MainConfigIFace *table,
                    QWidget *parent);

private slots:
    void add();
    void removeSelected();
    void removeAll();

private:
    QWidget *buildInput(const MainConfigObject &object);
    QVariant newElement();

    MainConfigIFace *table;
    int ref;
    CfgListWidget *list = nullptr;
    CfgTableWidget *tableEditor = nullptr;
    QWidget *buttons;
    QList<QLineEdit *> inputs;
    QComboBox *names = nullptr;
    QPushButton *addButton;
    bool networks = false;
};
