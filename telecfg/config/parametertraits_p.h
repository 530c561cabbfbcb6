// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/parametertypes.h"

// Private to the library: what the controls and the table read from a record's type code.
// The one place that knows which codes share a reading; everything else asks here instead
// of comparing codes.
struct ParameterTraits
{
    // The line edit's validator.
    enum class Validator {
        None,
        SignedWhole,
        UnsignedWhole,
        UnsignedDecimal,
        SignedDecimal,
        Address,
        PhoneNumber,
        PlainText,
        PunctuatedText,
    };
    // The element of a list parameter's vector.
    enum class Element { None, UShort, UInt, Network, Bytes, String };

    Validator validator = Validator::None;
    Element element = Element::None;
    // Spin boxes read bounds and value signed (otherwise unsigned, or as text for the decimal one).
    bool signedNumber = false;
    // A check box holds its flag as an int 0/1 (otherwise as a bool).
    bool intFlag = false;
    // A radio button is checked while the value equals the record's minimum.
    bool choice = false;

    static ParameterTraits of(int type);

    // Elements typed in as text rather than as numbers.
    bool textElement() const { return element == Element::Bytes || element == Element::String; }
};
