// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <memory>

/// @file
/// A ready parameter table a host uses as it is or derives from.

/// A ready parameter table: records by parameter number, each with the value as stored on the
/// device and the current one. A host uses it as it is or derives from it (every operation of
/// MainConfigIFace stays virtual).
///
/// - Modified means current and stored differ: containers element by element, numbers by
///   value whatever their QVariant type, texts as texts.
/// - Valid means the current value passes the parameter's Rules; a collection is valid when no
///   element is invalid (a repeated element or row identifier, a table cell that is no number
///   where the rules ask for numbers).
/// - Parameter 2 holds the configuration version (see version()).
/// - Radio choices of one parameter are separate records sharing one value: records put in the
///   same group (setGroup) take every value written to one of them.
///
/// loadJson and saveJson read and write the table as JSON bytes; the host reads and writes the
/// file itself. The format is described in docs/parametertable.md.
///
/// Asked for a parameter it does not hold, the table answers as for an empty record (object()
/// adds one), so a control bound to an unknown number never crashes.
class TELECFG_EXPORT ParameterTable : public QObject, public MainConfigIFace
{
    Q_OBJECT

public:
    /// What makes a current value valid. Unset bounds and a negative length do not apply.
    struct Rules
    {
        /// The smallest number; the value is read in the system locale or plain.
        QVariant minimum;
        /// The largest number; the value is read in the system locale or plain.
        QVariant maximum;
        /// The longest value as text, in characters; negative for no limit.
        int maxLength = -1;
        /// A regular expression the whole text must match; empty for none.
        QString pattern;
        /// Whether a table's filled cells must be numbers.
        bool numericCells = false;
    };
    /// How the host presents a parameter; the table itself does not use it. Loaded from and
    /// saved to JSON with the record.
    struct Presentation
    {
        /// The page (tab) the control is on.
        QString page;
        /// The text of the control's label.
        QString label;
        /// The control kind: "checkbox", "spinbox", "list", ...; empty when not shown.
        QString control;
        /// The text of a check box or radio button.
        QString text;
        /// Decimals of a double spin box.
        int decimals = 0;
    };
    /// A hardware variant the table describes.
    struct Hardware
    {
        /// The hardware id the controls are refreshed with.
        int id = 0;
        /// Its name for the user.
        QString name;
    };

    /// An empty table (configuration version 0).
    /// @param parent the QObject parent, which owns the table; may be null.
    explicit ParameterTable(QObject *parent = nullptr);
    ~ParameterTable() override;

    /// Replaces the whole table by the JSON in `json` (docs/parametertable.md).
    /// @param json the table as UTF-8 JSON bytes.
    /// @param[out] error where not null, says why loading failed; untouched on success.
    /// @return true when loaded; false leaves the table empty.
    bool loadJson(const QByteArray &json, QString *error = nullptr);
    /// The table as JSON, in the form loadJson reads.
    /// @return current values and, where they differ, stored ones, as UTF-8 JSON bytes.
    QByteArray saveJson() const;
    /// Replaces the whole table by the JSON file at `path` (a resource path such as
    /// ":/table.json" too), as loadJson() does.
    /// @param path the file to read.
    /// @param[out] error where not null, says why reading or loading failed, starting with the
    /// path; untouched on success.
    /// @return true when loaded; false leaves the table empty.
    bool loadJsonFile(const QString &path, QString *error = nullptr);
    /// Saves the table to the file at `path`: writes it as JSON with the current values as the
    /// stored ones and, once the file is written whole, makes them the stored ones (save()).
    /// A failed write leaves the file as it was and nothing stored.
    /// @param path the file to write.
    /// @param[out] error where not null, says why writing failed, starting with the path;
    /// untouched on success.
    /// @return true when written and saved.
    bool saveJsonFile(const QString &path, QString *error = nullptr);
    /// Empties the table: records, description and the configuration version.
    void clear();

    /// Adds or replaces a record; its value becomes the stored one as well. Records without a
    /// version range get the range "from version 0" so that they are shown.
    /// @param ref the parameter number.
    /// @param record the record, copied.
    /// @return the record held by the table, valid until it is replaced or the table cleared.
    MainConfigObject &addRecord(int ref, const MainConfigObject &record);
    /// Whether the table holds a parameter.
    /// @param ref the parameter number.
    /// @return true when a record of that number was added or loaded.
    bool contains(int ref) const;
    /// The parameters held.
    /// @return their numbers in the order they were added (parameter 2 is not among them).
    QList<int> parameters() const;

    /// The value as stored on the device.
    /// @param ref the parameter number.
    /// @return the stored value; invalid for an unknown parameter.
    QVariant storedValue(int ref) const;
    /// Sets the value as stored on the device (after a read, say); the current value stays.
    /// @param ref the parameter number.
    /// @param value the stored value.
    void setStoredValue(int ref, const QVariant &value);
    /// The validity rules of a parameter.
    /// @param ref the parameter number.
    /// @return its rules; rules that do not apply for an unknown parameter.
    Rules rules(int ref) const;
    /// The rules the table judges a parameter by (isValid()): its own rules and, where they set
    /// no bound, the range of a number record (its `minimum` and `maximum`, both set, the
    /// bounds its spin box shows; records of a radio group left out), so a range is written
    /// once.
    /// @param ref the parameter number.
    /// @return the rules in force.
    Rules validityRules(int ref) const;
    /// Sets the validity rules of a parameter.
    /// @param ref the parameter number.
    /// @param rules its rules.
    void setRules(int ref, const Rules &rules);
    /// How the host presents a parameter.
    /// @param ref the parameter number.
    /// @return its presentation; empty for an unknown parameter.
    Presentation presentation(int ref) const;
    /// Sets how the host presents a parameter.
    /// @param ref the parameter number.
    /// @param presentation its presentation.
    void setPresentation(int ref, const Presentation &presentation);
    /// Puts a record into a radio group.
    /// @param ref the parameter number.
    /// @param group the group; 0 takes the record out of its group.
    void setGroup(int ref, int group);
    /// The radio group of a record.
    /// @param ref the parameter number.
    /// @return the group given to setGroup(); 0 for none.
    int group(int ref) const;

    /// The configuration version (the value of parameter 2).
    /// @return the version.
    quint32 version() const;
    /// Sets the configuration version (the value of parameter 2).
    /// @param version the version.
    void setVersion(quint32 version);

    /// The device's name, as loaded; kept for the host.
    QString title;
    /// The pages (tabs) of the device's form, as loaded; kept for the host.
    QStringList pages;
    /// The configuration versions the table describes, as loaded; kept for the host.
    QList<int> versions;
    /// The hardware variants the table describes, as loaded; kept for the host.
    QList<Hardware> hardware;

    /// The current values become the stored ones.
    virtual void save();
    /// The stored values become current again; valueChanged for each one that changes.
    virtual void revert();
    /// The parameters whose current value differs from the stored one.
    /// @return their numbers in the order they were added.
    QList<int> modifiedParameters();
    /// The parameters whose current value breaks its rules.
    /// @return their numbers in the order they were added.
    QList<int> invalidParameters();

    MainConfigObject &object(int ref) override;
    QVariant value(int ref) override;
    /// Stores `v` (for every member of the record's radio group) and emits valueChanged when
    /// the value differs from the one held before.
    /// @param ref the parameter number.
    /// @param v the new current value.
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

    /// Equality as the table sees it (see the class description); usable by derived tables.
    /// @param a one value.
    /// @param b the other.
    /// @return true when the two are the same value.
    static bool sameValue(const QVariant &a, const QVariant &b);

signals:
    /// A parameter's current value changed through setValue() or revert(); written to one
    /// member of a radio group, each member whose value changed is told.
    /// @param ref the parameter number.
    void valueChanged(int ref);
    /// A parameter's stored value changed through setStoredValue() or save().
    /// @param ref the parameter number.
    void storedValueChanged(int ref);
    /// The whole table was replaced (loadJson()) or emptied (clear()).
    void reset();

private:
    void empty();
    QByteArray json(bool currentAsStored) const;

    struct Private;
    const std::unique_ptr<Private> d;
};
