// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QStringList>

// A ready parameter table: records by parameter number, each with the value as stored on the
// device and the current one. A host uses it as it is or derives from it (every operation of
// MainConfigIFace stays virtual).
//
// - Modified means current and stored differ: containers element by element, numbers by
//   value whatever their QVariant type, texts as texts.
// - Valid means the current value passes the parameter's Rules; a collection is valid when no
//   element is invalid (a repeated element or row identifier, a table cell that is no number
//   where the rules ask for numbers).
// - Parameter 2 holds the configuration version (see version()).
// - Radio choices of one parameter are separate records sharing one value: records put in the
//   same group (setGroup) take every value written to one of them.
//
// loadJson and saveJson read and write the table as JSON bytes; the host reads and writes the
// file itself. The format is described in docs/parametertable.md.
class TELECFG_EXPORT ParameterTable : public QObject, public MainConfigIFace
{
    Q_OBJECT

public:
    // What makes a current value valid. Unset bounds and a negative length do not apply.
    struct Rules
    {
        QVariant minimum, maximum; // numbers; the value is read in the system locale or plain
        int maxLength = -1;        // of the value as text
        QString pattern;           // the whole text must match (regular expression)
        bool numericCells = false; // a table's filled cells must be numbers
    };
    // How the host presents a parameter; the table itself does not use it. Loaded from and
    // saved to JSON with the record.
    struct Presentation
    {
        QString page;
        QString label;
        QString control; // "checkbox", "spinbox", "list", ... or empty when not shown
        QString text;    // of a check box or radio button
        int decimals = 0;
    };
    struct Hardware
    {
        int id = 0;
        QString name;
    };

    explicit ParameterTable(QObject *parent = nullptr);
    ~ParameterTable() override;

    // Replaces the whole table by the JSON in `json`. On failure the table is left empty,
    // false is returned and `error` (when given) says why.
    bool loadJson(const QByteArray &json, QString *error = nullptr);
    // The table as JSON, in the form loadJson reads; current values and, where they differ,
    // stored ones.
    QByteArray saveJson() const;
    void clear();

    // Adds or replaces a record; its value becomes the stored one as well. Records without a
    // version range get the range "from version 0" so that they are shown.
    MainConfigObject &addRecord(int ref, const MainConfigObject &record);
    bool contains(int ref) const;
    // Parameter numbers in the order they were added (parameter 2 is not among them).
    QList<int> parameters() const;

    QVariant storedValue(int ref) const;
    void setStoredValue(int ref, const QVariant &value);
    Rules rules(int ref) const;
    void setRules(int ref, const Rules &rules);
    Presentation presentation(int ref) const;
    void setPresentation(int ref, const Presentation &presentation);
    // Puts a record into a radio group (0 takes it out).
    void setGroup(int ref, int group);

    quint32 version() const;
    void setVersion(quint32 version);

    // Description of the device the table is for, as loaded; kept for the host.
    QString title;
    QStringList pages;
    QList<int> versions;
    QList<Hardware> hardware;

    // The current values become the stored ones.
    virtual void save();
    // The stored values become current again; valueChanged for each one that changes.
    virtual void revert();
    QList<int> modifiedParameters();
    QList<int> invalidParameters();

    MainConfigObject &object(int ref) override;
    QVariant value(int ref) override;
    // Stores `v` (for every member of the record's radio group) and emits valueChanged when
    // the value differs from the one held before.
    void setValue(int ref, QVariant v) override;
    bool isValid(int ref) override;
    bool isModified(int ref) override;
    bool matchesStored(int ref, QVariant candidate) override;
    QList<int> invalidItems(int ref) override;
    QString nameOfUInt(quint32 value, QList<NamedUInt> names) override;
    QString nameOfUShort(quint16 value, QList<NamedUShort> names) override;
    QList<int> modifiedItems(int ref) override;
    quint16 ushortOfName(QString text, QList<NamedUShort> names) override;
    quint32 uintOfName(QString text, QList<NamedUInt> names) override;
    bool isStoredItem(int ref, QVariant element) override;

    // Equality as the table sees it (see above); usable by derived tables.
    static bool sameValue(const QVariant &a, const QVariant &b);

signals:
    void valueChanged(int ref);

private:
    struct Entry
    {
        QVariant stored;
        Rules rules;
        Presentation presentation;
        int group = 0;
    };
    QMap<int, MainConfigObject> records;
    QMap<int, Entry> entries;
    QList<int> order;
};
