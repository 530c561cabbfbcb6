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

/// @file
/// The host's parameter table as the library sees it: one record per parameter and the
/// interface through which the bound controls read and write it.

/// A 16-bit value with its name, kept in a record's `valueNames`.
struct NamedUShort
{
    quint16 value = 0; ///< The value as the device stores it.
    QString name;      ///< The text shown for it.
};

/// A 32-bit value with its name, kept in a record's `valueNames`.
struct NamedUInt
{
    quint32 value = 0; ///< The value as the device stores it.
    QString name;      ///< The text shown for it.
};

Q_DECLARE_METATYPE(NamedUShort)
Q_DECLARE_METATYPE(NamedUInt)

/// One parameter record of the host's table.
///
/// The host owns every record; a bound control fetches it anew through
/// MainConfigIFace::object() at each call and keeps no pointer to it, so the host may rebuild
/// its table between calls. The field order is part of the host's binary interface: fields
/// are never moved or removed within 1.x.
struct MainConfigObject
{
    /// Table editors: the number of columns filled from the value (a `QList<uint>`).
    QVariant columnListA;
    /// Table editors: the number of columns shown (a `QList<uint>`).
    QVariant columnListB;
    /// Upper bound of a numeric parameter.
    QVariant maximum;
    /// Lower bound of a numeric parameter; for a radio button the value it stands for.
    QVariant minimum;
    /// The parameter's present value as the record holds it.
    QVariant value;
    /// The control bound to the parameter, written by the control's setReference(); not owned.
    QWidget *control = nullptr;
    /// The label given to the control's setReference(); not owned.
    QWidget *label = nullptr;
    /// Text of the host's own; the library neither reads nor writes it.
    QString hostText;
    /// Tool tip the bound control takes over when it is bound.
    QString toolTip;
    /// The parameter's type code, which chooses how a control reads and writes the value.
    int type = 0;
    /// A word of the host's own; the library neither reads nor writes it.
    int hostWordA = 0;
    /// A word of the host's own; the library neither reads nor writes it.
    int hostWordB = 0;
    /// A word of the host's own; the library neither reads nor writes it.
    int hostWordC = 0;
    /// Combo box entries: key = position from 0, `first` = shown text, `second` = value.
    QMap<int, QPair<QString, QString>> options;
    /// Check box: whether a partly checked state counts as checked.
    bool partialIsChecked = false;
    /// A word of the host's own; the library neither reads nor writes it.
    int hostWordD = 0;
    /// Step of a numeric parameter; 0 leaves out the multiple rule.
    int step = 0;
    /// Collections: the fixed number of element places.
    int capacity = 0;
    /// Collections: named values (`QList<NamedUShort>` or `QList<NamedUInt>`), or invalid.
    QVariant valueNames;
    /// Lowest configuration version per version key (see getConfigMinVersion()).
    QMap<int, int> minVersions;
    /// Highest configuration version per version key (see getConfigMaxVersion()).
    QMap<int, int> maxVersions;
    /// Hardware ids the parameter exists on; empty for every device.
    QList<int> hardwareIds;
    /// Which entry of minVersions and maxVersions applies.
    int versionKey = 0;
    /// Hidden on request (a control's setHidden()); a hidden parameter's control stays hidden.
    bool hidden = false;
    /// Table editors: the column headings.
    QStringList columnTitles;
    /// Licence level the parameter needs; above setGUILicenseLevel()'s level it is hidden.
    int licenceGate = 0;
};

/// The host's parameter table as the bound controls see it.
///
/// The host implements it and keeps it alive for as long as any control is bound to it; the
/// controls hold a plain pointer and never delete it. A parameter is named by its reference
/// number `ref`, an index the host chooses. The order of the virtual operations is part of the
/// host's binary interface: operations are never reordered, removed or inserted within 1.x.
class TELECFG_EXPORT MainConfigIFace
{
public:
    /// Virtual, so that a host's table can be deleted through this interface.
    virtual ~MainConfigIFace();
    /// The record of a parameter.
    /// @param ref the parameter's reference number.
    /// @return the host's record, owned by the host; it must exist for every ref a control is
    ///         bound to.
    virtual MainConfigObject &object(int ref) = 0;
    /// The parameter's present value.
    /// @param ref the parameter's reference number.
    /// @return the value, of the type the record's `type` implies.
    virtual QVariant value(int ref) = 0;
    /// Takes a value the user entered; every edit in a control ends here.
    /// @param ref the parameter's reference number.
    /// @param v the new value, of the type the control writes (see the controls' guide).
    virtual void setValue(int ref, QVariant v) = 0;
    /// Whether the present value is acceptable; a control paints an invalid one red.
    /// @param ref the parameter's reference number.
    /// @return false when the value is invalid.
    virtual bool isValid(int ref) = 0;
    /// Whether the value differs from the one read from the device; a control paints yellow.
    /// @param ref the parameter's reference number.
    /// @return true when modified.
    virtual bool isModified(int ref) = 0;
    /// Whether a candidate value equals the one read from the device (the combo box's yellow).
    /// @param ref the parameter's reference number.
    /// @param candidate the value to compare.
    /// @return true when equal to the stored value.
    virtual bool matchesStored(int ref, QVariant candidate) = 0;
    /// The places of a collection whose elements are invalid.
    /// @param ref the collection's reference number.
    /// @return the element places, in any order.
    virtual QList<int> invalidItems(int ref) = 0;
    /// The name of a 32-bit value.
    /// @param value the value to name.
    /// @param names the record's named values.
    /// @return the name, or the text the host shows for an unnamed value.
    virtual QString nameOfUInt(quint32 value, QList<NamedUInt> names) = 0;
    /// The name of a 16-bit value.
    /// @param value the value to name.
    /// @param names the record's named values.
    /// @return the name, or the text the host shows for an unnamed value.
    virtual QString nameOfUShort(quint16 value, QList<NamedUShort> names) = 0;
    /// The places of a collection whose elements were modified.
    /// @param ref the collection's reference number.
    /// @return the element places, in any order.
    virtual QList<int> modifiedItems(int ref) = 0;
    /// The 16-bit value of a name.
    /// @param text the name the user chose or typed.
    /// @param names the record's named values.
    /// @return the value, or what the host chooses for an unknown name.
    virtual quint16 ushortOfName(QString text, QList<NamedUShort> names) = 0;
    /// The 32-bit value of a name.
    /// @param text the name the user chose or typed.
    /// @param names the record's named values.
    /// @return the value, or what the host chooses for an unknown name.
    virtual quint32 uintOfName(QString text, QList<NamedUInt> names) = 0;
    /// Whether an element was stored on the device, so that its removal is shown and can be
    /// taken back.
    /// @param ref the collection's reference number.
    /// @param element the element as the collection's element type holds it.
    /// @return true for an element read from the device.
    virtual bool isStoredItem(int ref, QVariant element) = 0;
};

/// Lowest configuration version at which a parameter exists.
/// @param object the parameter's record; not changed.
/// @return the entry of `minVersions` under `versionKey`, else under 0, else 99 (which holds
///         the parameter back from every version below 99).
TELECFG_EXPORT int getConfigMinVersion(MainConfigObject &object);
/// Highest configuration version at which a parameter exists.
/// @param object the parameter's record; not changed.
/// @return the entry of `maxVersions` under `versionKey`, else under 0; 0 means no upper
///         limit (also when no entry exists).
TELECFG_EXPORT int getConfigMaxVersion(MainConfigObject &object);
