// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/accessiblecombobox_p.h"
#include "telecfg/controls/cfgcombobox.h"

#include <QAccessibleWidget>

namespace {
// A combo box named after its label (the accessible name binding sets), its value the
// current item's text; pressing it opens the list.
class AccessibleBoundComboBox : public QAccessibleWidget
{
public:
    explicit AccessibleBoundComboBox(QComboBox *box) : QAccessibleWidget(box, QAccessible::ComboBox)
    {
    }

    QString text(QAccessible::Text t) const override
    {
        const auto *box = static_cast<QComboBox *>(widget());
        switch (t) {
        case QAccessible::Name:
            return box->accessibleName().isEmpty() ? box->currentText() : box->accessibleName();
        case QAccessible::Value:
            return box->currentText();
        default:
            return QAccessibleWidget::text(t);
        }
    }

    QStringList actionNames() const override
    {
        return QStringList{showMenuAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &action) override
    {
        if (action == showMenuAction() || action == pressAction())
            static_cast<QComboBox *>(widget())->showPopup();
        else
            QAccessibleWidget::doAction(action);
    }
};

QAccessibleInterface *boundComboBoxFactory(const QString &, QObject *object)
{
    if (auto *box = qobject_cast<CfgComboBox *>(object))
        return new AccessibleBoundComboBox(box);
    return nullptr;
}
} // namespace

void installComboBoxAccessibility()
{
    static const bool installed = (QAccessible::installFactory(boundComboBoxFactory), true);
    Q_UNUSED(installed)
}
