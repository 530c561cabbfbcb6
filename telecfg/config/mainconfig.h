// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QList>
#include <QMap>
#include <QMetaType>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>

class QWidget;

// A 16-bit value with its name, kept in a record's `valueNames`.
struct NamedUShort
{
    quint16 value = 0;
    QString name;
};

// A 32-bit value with its name, kept in a record's `valueNames`.
struct NamedUInt
{
    quint32 value = 0;
    QString name;
};

Q_DECLARE_METATYPE(NamedUShort)
Q_DECLARE_METATYPE(NamedUInt)

// One parameter record of the host's table. Field order is part of the host ABI.
struct MainConfigObject
{
    QVariant columnListA, columnListB, maximum, minimum, value;
    QWidget *control = nullptr;
    QWidget *label = nullptr;
    QString hostText, toolTip;
    int type = 0;
    int hostWordA = 0, hostWordB = 0, hostWordC = 0;
    QMap<int, QPair<QString, QString>> options;
    bool partialIsChecked = false;
    int hostWordD = 0;
    int step = 0;
    int capacity = 0;
    QVariant valueNames;
    QMap<int, int> minVersions, maxVersions;
    QList<int> hardwareIds;
    int versionKey = 0;
    bool hidden = false;
    QStringList columnTitles;
    int licenceGate = 0;
};

// The host's parameter table as the bound controls see it. The host implements it;
// the order of the virtual operations is part of the host ABI.
class TELECFG_EXPORT MainConfigIFace
{
public:
    virtual ~MainConfigIFace();
    virtual MainConfigObject &object(int ref) = 0;
    virtual QVariant value(int ref) = 0;
    virtual void setValue(int ref, QVariant v) = 0;
    virtual bool isValid(int ref) = 0;
    virtual bool isModified(int ref) = 0;
    virtual bool matchesStored(int ref, QVariant candidate) = 0;
    virtual QList<int> invalidItems(int ref) = 0;
    virtual QString nameOfUInt(quint32 value, QList<NamedUInt> names) = 0;
    virtual QString nameOfUShort(quint16 value, QList<NamedUShort> names) = 0;
    virtual QList<int> modifiedItems(int ref) = 0;
    virtual quint16 ushortOfName(QString text, QList<NamedUShort> names) = 0;
    virtual quint32 uintOfName(QString text, QList<NamedUInt> names) = 0;
    virtual bool isStoredItem(int ref, QVariant element) = 0;
};

// Lowest configuration version at which the parameter exists: the entry under
// `versionKey`, else under 0, else 99 (held back from every version below 99).
TELECFG_EXPORT int getConfigMinVersion(MainConfigObject &object);
// Highest configuration version; 0 means no upper limit (also when no entry exists).
TELECFG_EXPORT int getConfigMaxVersion(MainConfigObject &object);
