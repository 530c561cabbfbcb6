// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

class MainConfigIFace;

// Internal to the library: a parameter's name and values as the user reads them, for
// whatever lists parameters outside their controls (the change review, the question before
// closing).
namespace valuetext {

// The name the user knows the parameter by: its bound control's label (with a button's own
// text), else the label and text the table's presentation gives, else "Parametr <number>".
QString name(MainConfigIFace &table, int ref);

// A value of the parameter as the user reads it: a check box's or radio button's state in
// words, an option's text, a collection's element count, anything else as it is. Empty for
// an invalid value.
QString text(MainConfigIFace &table, int ref, const QVariant &value);

// The current value of a changed parameter as the user reads it: for a collection its count
// and what differs from `stored` ("3 elementy: 1 dodany, 1 usunięty"), else text().
QString changeText(MainConfigIFace &table, int ref, const QVariant &stored,
                   const QVariant &current);

// A collection's elements as the user reads them, in place order without the free places:
// network names, named numbers, a table row's cells; empty for a value that is no collection.
QStringList elementTexts(MainConfigIFace &table, int ref, const QVariant &value);

} // namespace valuetext
