// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertraits_p.h"

ParameterTraits ParameterTraits::of(int type)
{
    using V = Validator;
    using E = Element;
    ParameterTraits traits;
    switch (ParameterType::Code(type)) {
    case ParameterType::Choice:
        traits.choice = true;
        traits.validator = V::SignedWhole;
        break;
    case ParameterType::Signed:
        traits.signedNumber = true;
        traits.validator = V::SignedWhole;
        break;
    case ParameterType::Signed7:
    case ParameterType::Signed28:
        traits.validator = V::SignedWhole;
        break;
    case ParameterType::Unsigned:
    case ParameterType::Unsigned2:
    case ParameterType::Unsigned6:
    case ParameterType::Unsigned11:
        traits.validator = V::UnsignedWhole;
        break;
    case ParameterType::UnsignedDecimal:
    case ParameterType::UnsignedDecimal15:
    case ParameterType::UnsignedDecimal18:
        traits.validator = V::UnsignedDecimal;
        break;
    case ParameterType::SignedDecimal:
        traits.validator = V::SignedDecimal;
        break;
    case ParameterType::Address:
    case ParameterType::Address19:
        traits.validator = V::Address;
        break;
    case ParameterType::PhoneNumber:
        traits.validator = V::PhoneNumber;
        break;
    case ParameterType::PlainText:
        traits.validator = V::PlainText;
        break;
    case ParameterType::PunctuatedText:
        traits.validator = V::PunctuatedText;
        break;
    case ParameterType::IntFlag:
        traits.intFlag = true;
        break;
    case ParameterType::UShortList:
        traits.element = E::UShort;
        break;
    case ParameterType::UIntList:
        traits.element = E::UInt;
        break;
    case ParameterType::NetworkList:
        traits.element = E::Network;
        break;
    case ParameterType::ByteArrayList:
        traits.element = E::Bytes;
        break;
    case ParameterType::StringList:
        traits.element = E::String;
        break;
    }
    return traits;
}
