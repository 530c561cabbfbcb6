// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/controls/visibility.h"
#include "telecfg/telecfg_export.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>

// Binds a designed form in one call. Every bound control (the six value controls and the
// two collection editors) whose object name is `cfg_<parameter number>` is bound to that
// parameter; the QLabel whose buddy it is becomes its label and hides with it. A widget named
// `cfg_<number>_<anything>` (the buttons of a list, say) hides with the control of that
// parameter too.
//
//     FormBinder binder;
//     for (const FormBinder::Problem &problem : binder.bind(ui.page, &table))
//         qWarning() << problem.text();
//     binder.refresh(hardwareId);   // visibility and colours of every control of the form
//
// Names that do not resolve come back as problems, and the control stays unbound.
class TELECFG_EXPORT FormBinder : public QObject
{
    Q_OBJECT

public:
    struct Problem
    {
        enum Reason {
            NoSuchParameter,  // the table has no parameter of that number
            NotABoundControl, // the widget is no bound control
            BadNumber,        // what follows "cfg_" is no parameter number
        };
        QString objectName;
        int ref = 0; // 0 when the number does not parse
        Reason reason = BadNumber;
        // "cfg_105: no such parameter", for a developer's log.
        QString text() const;
    };

    explicit FormBinder(QObject *parent = nullptr);
    ~FormBinder() override;

    // Binds the form's controls to `iface`, replacing what the binder held before. Whether a
    // parameter exists is asked of `exists`; without it, a ParameterTable answers by its
    // records and any other table is taken to hold every number.
    QList<Problem> bind(QWidget *form, MainConfigIFace *iface,
                        std::function<bool(int)> exists = {});
    // Binds every control again: binding is what loads a value into a control, so a host
    // calls this after it replaced values behind the controls' back (a revert, a load).
    void rebind();
    // Refreshes every bound control for the hardware id (0 = the id of the last refresh).
    void refresh(int hardwareId = 0);

    // The parameters bound, in the order of the form's widgets.
    QList<int> parameters() const;
    // The control bound to a parameter, null when there is none.
    QWidget *control(int ref) const;

    // Why the control of `ref` is hidden for `hardwareId` (0 = the id of the last refresh), in
    // words: "shown", or the reason with the figures that decide it.
    QString explainHidden(int ref, int hardwareId = 0) const;
    static QString explainHidden(MainConfigIFace &iface, int ref, int hardwareId);

private:
    struct Binding;
    QList<Binding> bindings;
    MainConfigIFace *iface = nullptr;
    int lastHardwareId = 0;
};
