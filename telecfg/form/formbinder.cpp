// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/form/formbinder.h"
#include "telecfg/config/licence_p.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/form/formstate.h"

#include <QHash>
#include <QLabel>
#include <QMap>
#include <QPointer>
#include <QRegularExpression>
#include <utility>

namespace {
// One bound control of the form, with what hides with it.
struct Binding
{
    int ref = 0;
    const BoundKind *kind = nullptr;
    QPointer<QWidget> control;
    QPointer<QWidget> label;
    QList<QPointer<QWidget>> related;
};

// A part of a bound control (the list of a list editor, say) is bound by its owner.
bool insideBoundControl(const QWidget *widget)
{
    for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget())
        if (BoundKind::find(parent))
            return true;
    return false;
}

QString versionKeyText(const MainConfigObject &record)
{
    return record.versionKey == 0 ? QStringLiteral("key 0")
                                  : QStringLiteral("key %1 nor key 0").arg(record.versionKey);
}
} // namespace

struct FormBinder::Private
{
    QList<Binding> bindings;
    // The bindings of each parameter, by their place in `bindings`.
    QHash<int, QList<int>> byRef;
    MainConfigIFace *iface = nullptr;
    int lastHardwareId = 0;
    bool reportUnnamed = false;
    std::unique_ptr<FormState> ownState;
    QPointer<FormState> state;
    QList<QMetaObject::Connection> following;

    void load(const Binding &binding) const
    {
        QList<QWidget *> related;
        for (const QPointer<QWidget> &widget : binding.related)
            if (widget)
                related.append(widget);
        binding.kind->setReference(binding.control, iface, binding.ref, binding.label, related);
    }

    // A parameter's value changed: its controls show it, except the one whose edit wrote it
    // (it shows it already and refreshes itself).
    void follow(int ref) const
    {
        for (int index : byRef.value(ref)) {
            const Binding &binding = bindings[index];
            if (!binding.control || binding.control == BoundControl::writing())
                continue;
            load(binding);
            binding.kind->updateControl(binding.control, 0);
        }
    }
};

QString FormBinder::Problem::text() const
{
    switch (reason) {
    case NoSuchParameter:
        return QStringLiteral("%1: no such parameter").arg(objectName);
    case NotABoundControl:
        return QStringLiteral("%1: not a bound control").arg(objectName);
    case NotAChoice:
        return QStringLiteral("%1: the record's type does not check a radio button")
            .arg(objectName);
    case Unnamed:
        return QStringLiteral("%1: a bound control without a cfg_ name").arg(objectName);
    case BadNumber:
        break;
    }
    return QStringLiteral("%1: no parameter number after \"cfg_\"").arg(objectName);
}

FormBinder::FormBinder(QObject *parent) : QObject(parent), d(std::make_unique<Private>()) {}

FormBinder::~FormBinder() = default;

QList<FormBinder::Problem> FormBinder::bind(QWidget *form, MainConfigIFace *table,
                                            std::function<bool(int)> exists)
{
    d->bindings.clear();
    d->byRef.clear();
    d->iface = table;
    if (d->ownState && d->ownState->table() != table) {
        if (d->state == d->ownState.get())
            follow(nullptr);
        d->ownState.reset();
    }
    if (auto *ready = dynamic_cast<ParameterTable *>(table); ready && !d->state) {
        d->ownState = std::make_unique<FormState>(ready);
        follow(d->ownState.get());
    }
    QList<Problem> problems;
    if (!form || !table)
        return problems;
    if (!exists) {
        if (auto *ready = dynamic_cast<ParameterTable *>(table))
            exists = [ready](int ref) { return ready->contains(ref); };
        else
            exists = [](int) { return true; };
    }

    static const QRegularExpression pattern(QStringLiteral("^cfg_(\\d{1,9})(_.*)?$"));
    QList<QPair<QWidget *, int>> controls;
    QMap<int, QList<QWidget *>> relatedByRef;
    const QList<QWidget *> widgets = form->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QString name = widget->objectName();
        if (!name.startsWith(QLatin1String("cfg_"))) {
            if (d->reportUnnamed && BoundKind::find(widget) && !insideBoundControl(widget))
                problems.append({name, 0, Problem::Unnamed});
            continue;
        }
        const QRegularExpressionMatch match = pattern.match(name);
        const int ref = match.hasMatch() ? match.captured(1).toInt() : 0;
        if (!match.hasMatch()) {
            problems.append({name, 0, Problem::BadNumber});
        } else if (!exists(ref)) {
            problems.append({name, ref, Problem::NoSuchParameter});
        } else if (match.lastCapturedIndex() == 2) {
            relatedByRef[ref].append(widget);
        } else {
            controls.append({widget, ref});
        }
    }

    const QList<QLabel *> labels = form->findChildren<QLabel *>();
    for (const auto &[widget, ref] : std::as_const(controls)) {
        Binding binding;
        binding.ref = ref;
        binding.control = widget;
        binding.kind = BoundKind::find(widget);
        if (!binding.kind) {
            problems.append({widget->objectName(), ref, Problem::NotABoundControl});
            continue;
        }
        if (qobject_cast<CfgRadioButton *>(widget) &&
            !ParameterTraits::of(table->object(ref).type).choice)
            problems.append({widget->objectName(), ref, Problem::NotAChoice});
        for (QLabel *label : labels) {
            if (label->buddy() == widget) {
                binding.label = label;
                binding.related.append(label);
                break;
            }
        }
        for (QWidget *related : relatedByRef.value(ref))
            binding.related.append(related);
        d->byRef[ref].append(d->bindings.size());
        d->bindings.append(binding);
    }
    rebind();
    return problems;
}

void FormBinder::rebind()
{
    for (const Binding &binding : std::as_const(d->bindings))
        if (binding.control)
            d->load(binding);
}

void FormBinder::setReportUnnamed(bool report)
{
    d->reportUnnamed = report;
}

void FormBinder::follow(FormState *state)
{
    for (const QMetaObject::Connection &connection : std::as_const(d->following))
        disconnect(connection);
    d->following.clear();
    d->state = state;
    if (!state)
        return;
    d->following = {
        connect(state, &FormState::parameterChanged, this, [this](int ref) { d->follow(ref); }),
        connect(state, &FormState::reloaded, this,
                [this] {
                    rebind();
                    refresh();
                }),
    };
}

FormState *FormBinder::state() const
{
    return d->state;
}

void FormBinder::refresh(int hardwareId)
{
    if (hardwareId != 0)
        d->lastHardwareId = hardwareId;
    for (const Binding &binding : std::as_const(d->bindings))
        if (binding.control)
            binding.kind->updateControl(binding.control, hardwareId);
}

QList<int> FormBinder::parameters() const
{
    QList<int> refs;
    for (const Binding &binding : std::as_const(d->bindings))
        if (binding.control)
            refs.append(binding.ref);
    return refs;
}

QWidget *FormBinder::control(int ref) const
{
    for (const Binding &binding : std::as_const(d->bindings))
        if (binding.ref == ref && binding.control)
            return binding.control;
    return nullptr;
}

QString FormBinder::explainHidden(int ref, int hardwareId) const
{
    if (!d->iface)
        return QStringLiteral("parameter %1: the form is not bound").arg(ref);
    return explainHidden(*d->iface, ref, hardwareId != 0 ? hardwareId : d->lastHardwareId);
}

QString FormBinder::explainHidden(MainConfigIFace &iface, int ref, int hardwareId)
{
    const HiddenReason reason = hiddenReason(iface, ref, hardwareId);
    MainConfigObject &record = iface.object(ref);
    const QString version = QString::number(iface.object(2).value.toUInt());
    const QString head = QStringLiteral("parameter %1 is hidden: ").arg(ref);
    switch (reason) {
    case HiddenReason::Shown:
        break;
    case HiddenReason::NoVersionRange:
        return head + QStringLiteral("the record has no version range (no lowest version under "
                                     "version %1), so it is shown from configuration version 99 "
                                     "on; the configuration version is %2")
                          .arg(versionKeyText(record), version);
    case HiddenReason::BelowVersionRange:
        return head + QStringLiteral("configuration version %1 is below its lowest version %2")
                          .arg(version)
                          .arg(getConfigMinVersion(record));
    case HiddenReason::AboveVersionRange:
        return head + QStringLiteral("configuration version %1 is above its highest version %2")
                          .arg(version)
                          .arg(getConfigMaxVersion(record));
    case HiddenReason::HardwareNotListed: {
        QStringList ids;
        for (int id : std::as_const(record.hardwareIds))
            ids.append(QString::number(id));
        return head + QStringLiteral("hardware id %1 is not among its hardware ids %2")
                          .arg(hardwareId)
                          .arg(ids.join(QStringLiteral(", ")));
    }
    case HiddenReason::HiddenOnRequest:
        return head + QStringLiteral("hidden on request (setHidden(true))");
    case HiddenReason::ClosedByLicence:
        return head + QStringLiteral("its licence gate %1 is above the licence level %2")
                          .arg(record.licenceGate)
                          .arg(guiLicenseLevel());
    }
    return QStringLiteral("parameter %1 is shown").arg(ref);
}
