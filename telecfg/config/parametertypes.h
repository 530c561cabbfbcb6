// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The names of the record type codes the controls understand.

/// The values of a record's `type` (MainConfigObject::type) that the controls give a meaning
/// to. Any other value is the host's own business: a control then applies none of its
/// type-dependent behaviour. Several codes are read alike; the first one of such a set carries
/// the plain name and the others add their code to it, so every code a device table may hold
/// has a name.
///
/// @code
/// record.type = ParameterType::IntFlag;      // a check box writing 0 or 1
/// @endcode
namespace ParameterType {
/// A record type code with a meaning to the controls.
enum Code : int {
    /// Line edit: unsigned whole number as text.
    Unsigned = 1,
    Unsigned2 = 2,   ///< read as the name above it
    Unsigned6 = 6,   ///< read as the name above it
    Unsigned11 = 11, ///< read as the name above it
    /// Line edit: signed whole number as text. Radio button: the choice of the parameter
    /// shown as checked while the value equals the record's `minimum`.
    Choice = 4,
    Signed7 = 7,   ///< read as the name above it
    Signed28 = 28, ///< read as the name above it
    /// Signed whole number for the line edit and both spin boxes (bounds and value read
    /// signed); every other type is read unsigned by the spin box and as text by the
    /// decimal spin box.
    Signed = 21,
    /// Line edit: unsigned decimal fraction (up to five places, the system locale's separator).
    UnsignedDecimal = 3,
    UnsignedDecimal15 = 15, ///< read as the name above it
    UnsignedDecimal18 = 18, ///< read as the name above it
    /// Line edit: signed decimal fraction.
    SignedDecimal = 30,
    /// Line edit: dotted four-part network address.
    Address = 10,
    Address19 = 19, ///< read as the name above it
    /// Line edit: telephone-style number.
    PhoneNumber = 12,
    /// Line edit: letters, digits, plus and blank.
    PlainText = 16,
    /// Line edit: letters, digits and a fixed set of punctuation.
    PunctuatedText = 17,
    /// Check box: the flag is held as an int 0 or 1 (every other type holds a bool).
    IntFlag = 22,
    /// List: QVector<quint16>, names in `valueNames` as QList<NamedUShort>.
    UShortList = 8,
    /// List: QVector<quint32>, names in `valueNames` as QList<NamedUInt>.
    UIntList = 24,
    /// List: QVector<quint32> of mobile network ids.
    NetworkList = 29,
    /// List: QVector<QByteArray> (identifiers such as driver cards).
    ByteArrayList = 20,
    /// List: QVector<QString>.
    StringList = 13,
};
} // namespace ParameterType
