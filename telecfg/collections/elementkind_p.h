// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"

#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>
#include <functional>

// What an element of a list parameter depends on besides its vector.
struct ElementContext
{
    MainConfigIFace *iface = nullptr;
    QVariant valueNames; // the record's named values, invalid when it has none
    // The list's byte conversion (element to text with mode 1, input to element with 0).
    std::function<QByteArray(const QByteArray &, int)> convertData;
};

// One element type of a list parameter: which vector the record's value holds, what a
// free place is, and how an element turns into text and back. The editor's logic is
// written once against this face; one small row of traits per type stands behind it.
// Every operation takes the value variant as the host holds it: a variant holding another
// container reads as an empty vector, and places outside the vector are never touched.
class ElementKind
{
public:
    virtual ~ElementKind() = default;

    virtual int placeCount(const QVariant &vector) const = 0;
    // False also for a place outside the vector.
    virtual bool isFree(const QVariant &vector, int place) const = 0;
    // The lowest free place below `limit`, or -1.
    virtual int firstFree(const QVariant &vector, quint32 limit) const = 0;
    // Each place in use, in rising order, with the text its item shows.
    virtual QVector<QPair<int, QString>> storedTexts(const ElementContext &context,
                                                     const QVariant &vector) const = 0;
    // The item text for an element about to be added from `input`.
    virtual QString newText(const ElementContext &context, const QVariant &input) const = 0;
    // Sets a place from an added or a restored input and returns the element as the
    // variant the list hands to its setValue; an invalid variant when the place is outside.
    virtual QVariant storeNew(const ElementContext &context, QVariant &vector, int place,
                              const QVariant &input) const = 0;
    virtual QVariant storeRestored(const ElementContext &context, QVariant &vector, int place,
                                   const QVariant &input) const = 0;
    // Sets a place from a variant; false (nothing changed) when the place is outside.
    virtual bool storeVariant(QVariant &vector, int place, const QVariant &element) const = 0;
    // The element at a place as a variant (for isStoredItem); invalid when outside.
    virtual QVariant elementAt(const QVariant &vector, int place) const = 0;
    // Zeroes a place, keeping a byte array's length.
    virtual void zeroPlace(QVariant &vector, int place) const = 0;
    // What the list hands its setValue to clear a place, given the whole value variant.
    virtual QVariant cleared(const QVariant &vector) const = 0;
    // Types whose add builds the item before it looks for a place; a full collection then
    // still shows that item.
    virtual bool buildsItemFirst() const = 0;
};

// The element type of a list parameter's type code; null for a code lists do not serve.
const ElementKind *elementKind(int type);
// The vector a removal reads: quint16 for type 8, quint32 for 24 and 29, byte arrays for
// every other code (so a string list's removals are never kept).
const ElementKind &removalKind(int type);

// The byte conversion of the byte-array type, element to text (mode 1) or input to
// element (mode 0). It always hands back `data`: the hexadecimal form it computes is
// overridden by the final assignment, deliberately, so bytes show as text.
QByteArray convertElementBytes(const QByteArray &data, int mode, int inputMode);
