// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"

#include <QJsonObject>
#include <QJsonValue>

// Private to the library: how ParameterTable turns JSON into the values the controls expect
// and back, and its value comparisons.
namespace parametervalues {

// The record's value for a JSON value, of the type the bound control reads and writes.
QVariant fromJson(const MainConfigObject &object, const QJsonValue &json);
// The JSON form of a value, as fromJson reads it back (collections without trailing free
// places).
QJsonValue toJson(const MainConfigObject &object, const QVariant &value);
// Capacity-independent shape of collection parameters: column lists and value names.
void readCollectionShape(MainConfigObject &object, const QJsonObject &json);
void writeCollectionShape(const MainConfigObject &object, QJsonObject &json);
// The step rule of a number: the value (negative ones by their unsigned reading) is a
// multiple of the record's step; a step of 0 leaves the rule out. The spin box paints by it
// and the ready table judges by it, so the two never disagree.
bool multipleOfStep(const MainConfigObject &object, const QVariant &value);
bool isCollection(const MainConfigObject &object);

// Equality as the table sees it: containers element by element, numbers by value, else text.
bool sameValue(const QVariant &a, const QVariant &b);
// Places whose elements differ between two collection values (a table's place is a row).
QList<int> differingElements(const MainConfigObject &object, const QVariant &current,
                             const QVariant &stored);
// Places of a collection whose element is invalid: a repeated element (for a table a
// repeated row identifier) or, with `numericCells`, a table cell that is no number.
QList<int> invalidElements(const MainConfigObject &object, bool numericCells);
// The elements of a collection value by place (a table's rows, each a list of its cells),
// free places left out.
QVariantList occupiedElements(const MainConfigObject &object, const QVariant &value);
// How a collection's current value differs from its stored one: elements are matched by
// value (a table's rows by their identifier, the first cell); free places count for nothing.
struct ElementChanges
{
    int count = 0;   // occupied places of the current value
    int added = 0;   // current elements the stored value does not hold
    int removed = 0; // stored elements the current value no longer holds
    int changed = 0; // table rows held by both whose other cells differ
};
ElementChanges elementChanges(const MainConfigObject &object, const QVariant &current,
                              const QVariant &stored);
// Whether a stored collection holds the element (for a table: the row identifier).
bool containsElement(const MainConfigObject &object, const QVariant &collection,
                     const QVariant &element);

} // namespace parametervalues
