// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/elementkind_p.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/parametertraits_p.h"

#include <QCoreApplication>

namespace {
QString unknownNameText(quint32 value)
{
    return QCoreApplication::translate("CfgListWidget", "Nieznana wartość (%1)")
        .arg(value, 0, 10, QLatin1Char(' '));
}

QVariant numberVariant(quint16 value)
{
    return QVariant(int(value));
}

QVariant numberVariant(quint32 value)
{
    return QVariant(uint(value));
}

QString nameOf(MainConfigIFace *iface, quint16 value, const QList<NamedUShort> &names)
{
    return iface->nameOfUShort(value, names);
}

QString nameOf(MainConfigIFace *iface, quint32 value, const QList<NamedUInt> &names)
{
    return iface->nameOfUInt(value, names);
}

quint16 valueOf(MainConfigIFace *iface, const QString &text, quint16,
                const QList<NamedUShort> &names)
{
    return iface->ushortOfName(text, names);
}

quint32 valueOf(MainConfigIFace *iface, const QString &text, quint32, const QList<NamedUInt> &names)
{
    return iface->uintOfName(text, names);
}

// Types 8 and 24: numbers, shown by their names when the record has named values.
template <class Number, class Named> struct NamedNumberRow
{
    using Element = Number;
    static constexpr bool itemFirst = sizeof(Number) == 4;

    static QList<Named> names(const ElementContext &context)
    {
        return qvariant_cast<QList<Named>>(context.valueNames);
    }
    static bool isFree(Number element) { return element == 0; }
    static QString storedText(const ElementContext &context, Number element)
    {
        if (!context.valueNames.isValid())
            return QString::number(element, 10);
        const QString name = nameOf(context.iface, element, names(context));
        return name.isEmpty() ? unknownNameText(element) : name;
    }
    static QString newText(const ElementContext &, const QVariant &input)
    {
        return input.toString();
    }
    static Number newElement(const ElementContext &context, const QVariant &input)
    {
        if (!context.valueNames.isValid())
            return Number(input.toUInt());
        const QList<Named> list = names(context);
        if (list.isEmpty())
            return Number(input.toUInt());
        return valueOf(context.iface, input.toString(), Number(), list);
    }
    // Unlike an add, a restore asks the host even for an empty list of names; deliberate.
    static Number restoredElement(const ElementContext &context, const QVariant &input)
    {
        if (!context.valueNames.isValid())
            return Number(input.toUInt());
        return valueOf(context.iface, input.toString(), Number(), names(context));
    }
    static QVariant variant(Number element) { return numberVariant(element); }
    static Number fromVariant(const QVariant &element) { return Number(element.toUInt()); }
    static Number zero(Number) { return 0; }
    static QVariant cleared(const QVariant &) { return QVariant(int(0)); }
};

// Type 29: mobile network ids, shown as their network text.
struct NetworkRow
{
    using Element = quint32;
    static constexpr bool itemFirst = true;

    static bool isFree(quint32 element) { return element == 0; }
    static QString storedText(const ElementContext &, quint32 element)
    {
        return networkText(element);
    }
    static QString newText(const ElementContext &, const QVariant &input)
    {
        return networkText(input.toUInt());
    }
    static quint32 newElement(const ElementContext &, const QVariant &input)
    {
        return input.toUInt();
    }
    static quint32 restoredElement(const ElementContext &, const QVariant &input)
    {
        return input.toUInt();
    }
    static QVariant variant(quint32 element) { return QVariant(uint(element)); }
    static quint32 fromVariant(const QVariant &element) { return element.toUInt(); }
    static quint32 zero(quint32) { return 0; }
    static QVariant cleared(const QVariant &) { return QVariant(int(0)); }
};

// Type 20: byte arrays such as driver identifiers, shown as their bytes.
struct BytesRow
{
    using Element = QByteArray;
    static constexpr bool itemFirst = true;

    static bool isFree(const QByteArray &element)
    {
        for (char byte : element)
            if (byte != 0)
                return false;
        return true;
    }
    static QString storedText(const ElementContext &context, const QByteArray &element)
    {
        const QByteArray bytes = context.convertData(element, 1);
        // The text ends at the first zero byte.
        return QString::fromUtf8(bytes.constData(),
                                 int(qstrnlen(bytes.constData(), uint(bytes.size()))));
    }
    static QString newText(const ElementContext &, const QVariant &input)
    {
        return input.toString();
    }
    static QByteArray newElement(const ElementContext &context, const QVariant &input)
    {
        return context.convertData(input.toByteArray(), 0);
    }
    static QByteArray restoredElement(const ElementContext &, const QVariant &input)
    {
        return input.toByteArray();
    }
    static QVariant variant(const QByteArray &element) { return QVariant(element); }
    static QByteArray fromVariant(const QVariant &element) { return element.toByteArray(); }
    static QByteArray zero(const QByteArray &element) { return QByteArray(element.size(), '\0'); }
    // The whole value variant, whose byte array is empty: the place ends with size 0.
    static QVariant cleared(const QVariant &vector) { return vector; }
};

// Type 13: strings.
struct StringRow
{
    using Element = QString;
    static constexpr bool itemFirst = true;

    static bool isFree(const QString &element) { return element.isEmpty(); }
    static QString storedText(const ElementContext &, const QString &element) { return element; }
    static QString newText(const ElementContext &, const QVariant &input)
    {
        return input.toString();
    }
    static QString newElement(const ElementContext &, const QVariant &input)
    {
        return input.toString();
    }
    static QString restoredElement(const ElementContext &, const QVariant &input)
    {
        return input.toString();
    }
    static QVariant variant(const QString &element) { return QVariant(element); }
    static QString fromVariant(const QVariant &element) { return element.toString(); }
    static QString zero(const QString &) { return QString(); }
    static QVariant cleared(const QVariant &) { return QVariant(""); }
};

template <class Row> class RowKind final : public ElementKind
{
public:
    using Vector = QVector<typename Row::Element>;

    int placeCount(const QVariant &vector) const override { return read(vector).size(); }
    bool isFree(const QVariant &vector, int place) const override
    {
        const Vector elements = read(vector);
        return inside(elements, place) && Row::isFree(elements.at(place));
    }
    int firstFree(const QVariant &vector, quint32 limit) const override
    {
        const Vector elements = read(vector);
        const quint32 end = qMin(limit, quint32(elements.size()));
        for (quint32 place = 0; place < end; ++place)
            if (Row::isFree(elements.at(int(place))))
                return int(place);
        return -1;
    }
    QVector<QPair<int, QString>> storedTexts(const ElementContext &context,
                                             const QVariant &vector) const override
    {
        const Vector elements = read(vector);
        QVector<QPair<int, QString>> texts;
        for (int place = 0; place < elements.size(); ++place)
            if (!Row::isFree(elements.at(place)))
                texts.append({place, Row::storedText(context, elements.at(place))});
        return texts;
    }
    QString newText(const ElementContext &context, const QVariant &input) const override
    {
        return Row::newText(context, input);
    }
    QVariant storeNew(const ElementContext &context, QVariant &vector, int place,
                      const QVariant &input) const override
    {
        return store(vector, place, Row::newElement(context, input));
    }
    QVariant storeRestored(const ElementContext &context, QVariant &vector, int place,
                           const QVariant &input) const override
    {
        return store(vector, place, Row::restoredElement(context, input));
    }
    bool storeVariant(QVariant &vector, int place, const QVariant &element) const override
    {
        return store(vector, place, Row::fromVariant(element)).isValid();
    }
    QVariant elementAt(const QVariant &vector, int place) const override
    {
        const Vector elements = read(vector);
        return inside(elements, place) ? Row::variant(elements.at(place)) : QVariant();
    }
    void zeroPlace(QVariant &vector, int place) const override
    {
        const Vector elements = read(vector);
        if (inside(elements, place))
            store(vector, place, Row::zero(elements.at(place)));
    }
    QVariant cleared(const QVariant &vector) const override { return Row::cleared(vector); }
    bool buildsItemFirst() const override { return Row::itemFirst; }

private:
    static Vector read(const QVariant &vector) { return qvariant_cast<Vector>(vector); }
    static bool inside(const Vector &elements, int place)
    {
        return place >= 0 && place < elements.size();
    }
    static QVariant store(QVariant &vector, int place, const typename Row::Element &element)
    {
        Vector elements = read(vector);
        if (!inside(elements, place))
            return QVariant();
        // Writing an equal element would only copy the whole vector.
        if (!(elements.at(place) == element)) {
            elements[place] = element;
            vector = QVariant::fromValue(elements);
        }
        return Row::variant(element);
    }
};

// Built on first use rather than at load time.
template <class Row> const ElementKind &kindOf()
{
    static const RowKind<Row> kind;
    return kind;
}
const ElementKind &shortKind()
{
    return kindOf<NamedNumberRow<quint16, NamedUShort>>();
}
const ElementKind &longKind()
{
    return kindOf<NamedNumberRow<quint32, NamedUInt>>();
}
} // namespace

const ElementKind *elementKind(int type)
{
    using E = ParameterTraits::Element;
    switch (ParameterTraits::of(type).element) {
    case E::UShort:
        return &shortKind();
    case E::UInt:
        return &longKind();
    case E::Network:
        return &kindOf<NetworkRow>();
    case E::Bytes:
        return &kindOf<BytesRow>();
    case E::String:
        return &kindOf<StringRow>();
    case E::None:
        break;
    }
    return nullptr;
}

const ElementKind &removalKind(int type)
{
    using E = ParameterTraits::Element;
    const E element = ParameterTraits::of(type).element;
    if (element == E::UShort)
        return shortKind();
    if (element == E::UInt || element == E::Network)
        return longKind();
    return kindOf<BytesRow>();
}

QByteArray convertElementBytes(const QByteArray &data, int mode, int inputMode)
{
    QByteArray result;
    QByteArray copy = data;
    if (inputMode == 0) {
        if (mode != 0) {
            for (int i = 0; i < data.size(); ++i) {
                if (i != 0)
                    result.append('-');
                result.append(QStringLiteral("%1")
                                  .arg(uint(quint8(data.at(i))), 2, 16, QLatin1Char('0'))
                                  .toLatin1());
            }
        } else {
            copy.replace('-', QByteArray());
            result = QByteArray::fromHex(copy);
        }
    }
    // Deliberate: the input always comes back unchanged, so bytes never show as hexadecimal.
    result = data;
    return result;
}
