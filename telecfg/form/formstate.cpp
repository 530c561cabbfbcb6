// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/form/formstate.h"
#include "telecfg/config/parametertable.h"

#include <QHash>
#include <QSet>
#include <algorithm>

struct FormState::Private
{
    MainConfigIFace *table = nullptr;
    ParameterTable *ready = nullptr;
    QList<int> order;
    QHash<int, int> position;
    QSet<int> modified;
    QSet<int> invalid;

    QList<int> inOrder(const QSet<int> &refs) const
    {
        QList<int> list(refs.cbegin(), refs.cend());
        std::sort(list.begin(), list.end(),
                  [this](int a, int b) { return position.value(a) < position.value(b); });
        return list;
    }
};

FormState::FormState(ParameterTable *table, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>())
{
    d->table = table;
    d->ready = table;
    if (!table)
        return;
    connect(table, &ParameterTable::valueChanged, this, &FormState::tableChanged);
    connect(table, &ParameterTable::storedValueChanged, this, &FormState::tableChanged);
    connect(table, &ParameterTable::reset, this, &FormState::reload);
    follow(table->parameters());
}

FormState::FormState(MainConfigIFace *table, const QList<int> &parameters, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>())
{
    d->table = table;
    if (table)
        follow(parameters);
}

FormState::~FormState() = default;

MainConfigIFace *FormState::table() const
{
    return d->table;
}

ParameterTable *FormState::parameterTable() const
{
    return d->ready;
}

QList<int> FormState::parameters() const
{
    return d->order;
}

bool FormState::isModified() const
{
    return !d->modified.isEmpty();
}

bool FormState::isValid() const
{
    return d->invalid.isEmpty();
}

QList<int> FormState::modifiedParameters() const
{
    return d->inOrder(d->modified);
}

QList<int> FormState::invalidParameters() const
{
    return d->inOrder(d->invalid);
}

void FormState::save()
{
    if (d->ready)
        d->ready->save();
}

void FormState::revert()
{
    if (d->ready)
        d->ready->revert();
}

bool FormState::restore(int ref)
{
    if (!d->ready || !d->ready->contains(ref))
        return false;
    d->ready->setValue(ref, d->ready->storedValue(ref));
    return true;
}

void FormState::tableChanged(int ref)
{
    if (!d->table || !d->position.contains(ref))
        return;
    const bool wasModified = isModified();
    const bool wasValid = isValid();
    take(ref);
    emit parameterChanged(ref);
    announceFlips(wasModified, wasValid);
}

void FormState::reload()
{
    const bool wasModified = isModified();
    const bool wasValid = isValid();
    follow(d->ready ? d->ready->parameters() : d->order);
    emit reloaded();
    announceFlips(wasModified, wasValid);
}

void FormState::follow(const QList<int> &parameters)
{
    d->order = parameters;
    d->position.clear();
    d->modified.clear();
    d->invalid.clear();
    for (int i = 0; i < parameters.size(); ++i)
        d->position.insert(parameters[i], i);
    for (int ref : parameters)
        take(ref);
}

void FormState::take(int ref)
{
    if (d->table->isModified(ref))
        d->modified.insert(ref);
    else
        d->modified.remove(ref);
    if (d->table->isValid(ref))
        d->invalid.remove(ref);
    else
        d->invalid.insert(ref);
}

void FormState::announceFlips(bool wasModified, bool wasValid)
{
    if (wasModified != isModified())
        emit modifiedChanged(isModified());
    if (wasValid != isValid())
        emit validChanged(isValid());
}
