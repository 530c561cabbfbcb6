// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertraits_p.h"

#include <utility>

ParameterTraits ParameterTraits::of(int type)
{
    using namespace ParameterType;
    using V = Validator;
    using E = Element;
    static const std::pair<int, ParameterTraits> table[] = {
        {Unsigned, {V::UnsignedWhole}},
        {Unsigned2, {V::UnsignedWhole}},
        {Unsigned6, {V::UnsignedWhole}},
        {Unsigned11, {V::UnsignedWhole}},
        {Choice, {V::SignedWhole, E::None, false, false, true}},
        {Signed7, {V::SignedWhole}},
        {Signed28, {V::SignedWhole}},
        {Signed, {V::SignedWhole, E::None, true}},
        {UnsignedDecimal, {V::UnsignedDecimal}},
        {UnsignedDecimal15, {V::UnsignedDecimal}},
        {UnsignedDecimal18, {V::UnsignedDecimal}},
        {SignedDecimal, {V::SignedDecimal}},
        {Address, {V::Address}},
        {Address19, {V::Address}},
        {PhoneNumber, {V::PhoneNumber}},
        {PlainText, {V::PlainText}},
        {PunctuatedText, {V::PunctuatedText}},
        {IntFlag, {V::None, E::None, false, true}},
        {UShortList, {V::None, E::UShort}},
        {UIntList, {V::None, E::UInt}},
        {NetworkList, {V::None, E::Network}},
        {ByteArrayList, {V::None, E::Bytes}},
        {StringList, {V::None, E::String}},
    };
    for (const auto &[code, traits] : table)
        if (code == type)
            return traits;
    return {};
}
