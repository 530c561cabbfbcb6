// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"

#include <QJsonObject>
#include <QJsonValue>

// How the demo's JSON becomes the values the controls expect, and the host's own value
// comparisons (the library has none of its own).

// The record's value for a JSON value, of the type the bound control reads and writes.
QVariant demoValue(const MainConfigObject &object, const QJsonValue &json);
// Capacity, column lists and value names of collection parameters.
void applyCollectionShape(MainConfigObject &object, const QJsonObject &json);
bool isCollection(const MainConfigObject &object);

// Equality as the host sees it: containers element by element, scalars by value.
bool sameValue(const QVariant &a, const QVariant &b);
// Places whose elements differ between two collection values (a table's place is a row).
QList<int> differingElements(const MainConfigObject &object, const QVariant &current,
                             const QVariant &stored);
// Places of a collection whose element breaks the parameter's rules (a repeated element,
// a table cell that is not a number).
QList<int> invalidElements(const MainConfigObject &object, const QJsonObject &rules);
// Whether a stored collection holds the element (for a table: the row identifier).
bool containsElement(const MainConfigObject &object, const QVariant &collection,
                     const QVariant &element);
