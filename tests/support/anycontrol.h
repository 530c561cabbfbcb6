// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/controls/boundcontrol.h"

#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <memory>

class TestHost;

// One bound control of any kind behind a common face, so one test table runs over every
// kind: the protocol through the kind's registered operations, plus a user edit and the
// kind's own operations.
class AnyControl
{
public:
    // A new control of the kind named ("checkbox", ... anyControlKinds()); without a parent
    // the adapter owns it.
    explicit AnyControl(const QString &kindName, QWidget *parent = nullptr);

    void setReference(MainConfigIFace *iface, int ref, QWidget *label, QList<QWidget *> related)
    {
        bound = ref;
        kind->setReference(widget, iface, ref, label, related);
    }

    void updateControl(int id) { kind->updateControl(widget, id); }
    void setEnabled(bool on) { kind->setEnabled(widget, on); }
    void updateEnableState(bool on) { kind->updateEnableState(widget, on); }
    void setHidden(bool on) { kind->setHidden(widget, on); }
    void setError(bool on) { kind->setError(widget, on); }
    bool isError() const { return kind->isError(widget); }
    // One edit through the widget's own change path, as the user makes it (for the collection
    // editors an add of a new element to the bound parameter).
    void userEdit();
    // A signal of the control's own that the user edit emits (SIGNAL() form).
    const char *editSignal() const;
    // The kind's own operations beyond the protocol (a collection's add, remove and input
    // mode, a combo box's skip, ...), each fed the bound reference and an arbitrary value.
    int operationCount() const;
    void operate(int index, int ref, const QVariant &value);

    QString name;
    QPointer<QWidget> widget;
    const BoundKind *kind;

private:
    int bound = 0;
    std::shared_ptr<QWidget> owner;
};

// The kinds a protocol test runs over, by name. Add each new kind here.
QStringList anyControlKinds();

// Adds at `ref` a record of the kind's usual type on which the user edit writes to the host.
MainConfigObject &addEditableRecord(TestHost &host, const QString &kind, int ref);

// The list's selection connection fails on purpose (the list ignores selection changes);
// suites that make lists allow its warning with this.
void allowListConnectionWarning();
