// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/gui.h"
#include "telecfg/config/licence_p.h"
#include "telecfg/network/countrytable.h"

#include <QGroupBox>
#include <QVector>

GUI::GUI()
{
    fillCountryTable();
}

void setGroupBoxTitleBold(QGroupBox *box)
{
    if (!box)
        return;
    // A font set on the box passes to every child without a font of its own; note the
    // children's weights first and give each back only normal or bold afterwards. All
    // widgets below the box count, named or not (no name filter).
    const QList<QWidget *> children = box->findChildren<QWidget *>(QString());
    QVector<bool> heavy;
    heavy.reserve(children.size());
    for (const QWidget *child : children)
        heavy.append(child->font().weight() > QFont::Medium);

    QFont title = box->font();
    title.setWeight(QFont::Bold);
    box->setFont(title);

    for (int i = 0; i < children.size(); ++i) {
        QFont font = children[i]->font();
        font.setWeight(heavy[i] ? QFont::Bold : QFont::Normal);
        children[i]->setFont(font);
    }
}

void setGUILicenseLevel(int level)
{
    setLicenceLevel(level);
}
