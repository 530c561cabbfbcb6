// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/collectiontypes.h"
#include "telecfg/qtcompat_p.h"

#include <QHash>

namespace {
template <class Container> int registerContainer(const char *name)
{
    const int id = qRegisterMetaType<Container>(name);
    // Lets hosts iterate values and compare them (QVariant ==) by their elements.
    qtcompat::registerSequentialContainer<Container>(id);
    return id;
}

const QHash<QByteArray, int> &registeredIds()
{
    // Function-local: registered on first use, then handed out without work.
    static const QHash<QByteArray, int> ids = [] {
        QHash<QByteArray, int> result;
        result.insert("QVector<quint16>", registerContainer<QVector<quint16>>("QVector<quint16>"));
        result.insert("QVector<quint32>", registerContainer<QVector<quint32>>("QVector<quint32>"));
        result.insert("QVector<QString>", registerContainer<QVector<QString>>("QVector<QString>"));
        const QByteArray bytes =
            QByteArray("QVector<") + qtcompat::typeName(QMetaType::QByteArray) + '>';
        result.insert(bytes, registerContainer<QVector<QByteArray>>(bytes.constData()));
        // A name ending in '>' takes a blank before the closing bracket.
        const QByteArray nested = QByteArray("QVector<") + bytes + " >";
        result.insert(nested, registerContainer<ColumnVectors>(nested.constData()));
        const QByteArray uints = QByteArray("QList<") + qtcompat::typeName(QMetaType::UInt) + '>';
        result.insert(uints, registerContainer<QList<uint>>(uints.constData()));
        result.insert("QList<NamedUShort>",
                      qRegisterMetaType<QList<NamedUShort>>("QList<NamedUShort>"));
        result.insert("QList<NamedUInt>", qRegisterMetaType<QList<NamedUInt>>("QList<NamedUInt>"));
        return result;
    }();
    return ids;
}
} // namespace

void registerCollectionTypes()
{
    registeredIds();
}

int collectionTypeId(const char *name)
{
    return registeredIds().value(QByteArray(name), 0);
}
