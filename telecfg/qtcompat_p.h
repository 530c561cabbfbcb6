// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

// The few places where Qt 5 and Qt 6 differ for this library, kept out of the classes' files.

#include <QComboBox>
#include <QHashFunctions>
#include <QMetaType>
#include <QtGlobal>

// The signal a spin box sends with the text of its new value: Qt 6 names it textChanged and
// sends it where Qt 5 sent valueChanged(QString), with the same text.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#define TELECFG_SPINBOX_TEXT_SIGNAL SIGNAL(textChanged(const QString &))
#else
#define TELECFG_SPINBOX_TEXT_SIGNAL SIGNAL(valueChanged(const QString &))
#endif

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QMetaMethod>
#include <QValidator>
#include <QtCore5Compat/QRegExp>

// Qt 6 widgets have no validator over QRegExp; this one decides exactly as Qt 5's did, with
// the same regular expression engine, so every pattern accepts and refuses the same input.
class RegExpValidator : public QValidator
{
public:
    RegExpValidator(const QRegExp &rx, QObject *parent) : QValidator(parent), rx(rx) {}
    State validate(QString &input, int &pos) const override
    {
        QRegExp match = rx;
        if (match.exactMatch(input))
            return Acceptable;
        if (match.matchedLength() == input.size())
            return Intermediate;
        pos = input.size();
        return Invalid;
    }

private:
    QRegExp rx;
};
#else
#include <QRegExp>
#include <QRegExpValidator>
using RegExpValidator = QRegExpValidator;
#endif

namespace qtcompat {
// What qHash returns: uint in Qt 5, size_t in Qt 6.
using HashValue = decltype(qHash(0));

// The name the meta-type system gives a built-in type ("uint", "QByteArray").
inline QByteArray typeName(int id)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QByteArray(QMetaType(id).name());
#else
    return QByteArray(QMetaType::typeName(id));
#endif
}

// Lets a registered container be read as a QSequentialIterable and compared (QVariant ==) by
// its elements. Qt 6 does both for every container by itself.
template <class Container> void registerSequentialContainer(int id)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    Q_UNUSED(id)
#else
    if (!QMetaType::hasRegisteredConverterFunction(
            id, qMetaTypeId<QtMetaTypePrivate::QSequentialIterableImpl>()))
        QMetaType::registerConverter<Container, QtMetaTypePrivate::QSequentialIterableImpl>(
            QtMetaTypePrivate::QSequentialIterableConvertFunctor<Container>());
    if (!QMetaType::hasRegisteredComparators(id))
        QMetaType::registerEqualsComparator<Container>();
#endif
}

// A validator over a QRegExp pattern (case sensitive, the full regular expression syntax).
inline QValidator *regExpValidator(const QString &pattern, QObject *parent)
{
    return new RegExpValidator(QRegExp(pattern, Qt::CaseSensitive, QRegExp::RegExp), parent);
}

// Calls `slot` (a SLOT() string taking one QString) with the new item's text whenever the
// combo box's current index changes. Qt 6 dropped currentIndexChanged(QString), and its
// currentTextChanged stays silent between two items of the same text, so the Qt 6 build
// relays currentIndexChanged(int); a slot that does not exist warns as a failed connect would.
inline void connectCurrentIndexText(QComboBox *box, QObject *receiver, const char *slot)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QByteArray signature = QMetaObject::normalizedSignature(slot + 1);
    const int index = receiver->metaObject()->indexOfSlot(signature.constData());
    if (index < 0) {
        qWarning("QObject::connect: No such slot %s::%s", receiver->metaObject()->className(),
                 signature.constData());
        return;
    }
    const QMetaMethod method = receiver->metaObject()->method(index);
    QObject::connect(
        box, &QComboBox::currentIndexChanged, receiver, [box, receiver, method](int item) {
            method.invoke(receiver, Qt::DirectConnection, Q_ARG(QString, box->itemText(item)));
        });
#else
    QObject::connect(box, SIGNAL(currentIndexChanged(const QString &)), receiver, slot);
#endif
}

// Whether a QVariant holds a number of any width, a bool included.
inline bool isNumeric(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

// QVariant equality as the controls have always had it: values of different types are equal
// when the right one converts to the left one's type and then matches ("2" and 2u), numbers
// compare by value. Qt 6's operator== no longer converts, so the Qt 6 build does it here.
inline bool sameValue(const QVariant &left, const QVariant &right)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    if (left.metaType() == right.metaType() || !left.isValid() || !right.isValid())
        return left == right;
    if (isNumeric(left) && isNumeric(right))
        return left == right;
    QVariant converted = right;
    return converted.convert(left.metaType()) && left == converted;
#else
    return left == right;
#endif
}

// The first item whose `role` data equals `value` as sameValue has it, or -1.
inline int findData(const QComboBox *box, const QVariant &value, int role)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    for (int i = 0; i < box->count(); ++i)
        if (sameValue(value, box->itemData(i, role)))
            return i;
    return -1;
#else
    return box->findData(value, role, Qt::MatchCaseSensitive);
#endif
}

} // namespace qtcompat
