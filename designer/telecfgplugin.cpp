// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfgplugin.h"

#include "telecfg/controls/boundcontrol.h"
#include "telecfg/dialogs/statuslabel.h"
#include "telecfg/images/defaultimages.h"

#include <QPainter>
#include <QPixmap>

TelecfgWidget::TelecfgWidget(const Description &widget, QObject *parent)
    : QObject(parent), description(widget)
{
}

QString TelecfgWidget::includeFile() const
{
    return description.header;
}

QIcon TelecfgWidget::icon() const
{
    // Drawn rather than shipped: a framed field with the control's glyph.
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(90, 90, 90), 1.5));
    painter.setBrush(description.name == QLatin1String("StatusLabel") ? QColor(170, 230, 170)
                                                                      : QColor(255, 255, 142));
    painter.drawRoundedRect(QRectF(2.5, 5.5, 27, 21), 3, 3);
    QFont font = painter.font();
    font.setPixelSize(13);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRect(2, 5, 28, 22), Qt::AlignCenter, description.glyph);
    painter.end();
    return QIcon(pixmap);
}

QString TelecfgWidget::domXml() const
{
    // The object name is no cfg_<number> on purpose: a fresh control binds to nothing until
    // the form's author names its parameter.
    QString objectName = description.name;
    objectName[0] = objectName[0].toLower();
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">%3</widget></ui>")
        .arg(description.name, objectName, description.xml);
}

namespace {
QString textProperty(const char *text)
{
    return QStringLiteral("<property name=\"text\"><string>%1</string></property>")
        .arg(QString::fromUtf8(text));
}

// How each bound control shows in the widget box; what it is and where it is declared
// come from the library's kinds of bound control.
struct Look
{
    const char *name;
    QString glyph;
    QString toolTip;
    QString whatsThis;
    QString xml;
};
} // namespace

TelecfgDesignerPlugin::TelecfgDesignerPlugin(QObject *parent) : QObject(parent)
{
    // The check box and radio button style sheets draw their indicators from these images.
    initDefaultImages();
    const Look looks[] = {
        {"CfgCheckBox", QStringLiteral("\u2713"),
         QStringLiteral("Check box bound to a flag parameter"),
         QStringLiteral("A check box showing and writing one flag parameter (an int 0/1 for "
                        "IntFlag, else a bool), yellow while modified."),
         textProperty("Parametr")},
        {"CfgComboBox", QStringLiteral("\u25BE"),
         QStringLiteral("Combo box bound to a parameter with options"),
         QStringLiteral("A combo box filled from the parameter's options; the choice writes the "
                        "option's value."),
         QString()},
        {"CfgLineEdit", QStringLiteral("ab"),
         QStringLiteral("Line edit bound to a text or number parameter"),
         QStringLiteral("A line edit whose validator follows the parameter's type; red while "
                        "invalid, yellow while modified."),
         QString()},
        {"CfgSpinBox", QStringLiteral("12"),
         QStringLiteral("Spin box bound to a whole-number parameter"),
         QStringLiteral("A spin box taking bounds and step from the parameter's record."),
         QString()},
        {"CfgDoubleSpinBox", QStringLiteral("1,5"),
         QStringLiteral("Spin box bound to a decimal parameter"),
         QStringLiteral("A decimal spin box taking bounds and step from the parameter's record; "
                        "the number of decimals is the form's to set."),
         QString()},
        {"CfgRadioButton", QStringLiteral("\u25C9"),
         QStringLiteral("Radio button for one choice of a parameter"),
         QStringLiteral("A radio button standing for one value of a parameter (the record's "
                        "minimum); each choice is a parameter number of its own."),
         textProperty("Wybór")},
        {"CfgListWidget", QStringLiteral("\u2261"),
         QStringLiteral("List editor bound to a collection parameter"),
         QStringLiteral("A list of a collection parameter's elements, each painted by its state; "
                        "the host's buttons call addValue and remove. Widgets named "
                        "cfg_<number>_<anything> hide with it."),
         QString()},
        {"CfgListEditor", QStringLiteral("\u2261+"),
         QStringLiteral("List editor with its own Add and Remove buttons"),
         QStringLiteral("A list of a collection parameter's elements with \"Dodaj\u2026\" and "
                        "\"Usu\u0144\": Add asks with an input that fits the element type, "
                        "Remove removes the selection."),
         QString()},
        {"CfgTableWidget", QStringLiteral("\u25A6"),
         QStringLiteral("Table editor bound to a table parameter"),
         QStringLiteral("A table of a table parameter's rows (one column vector per column), "
                        "each row painted by its state."),
         QString()},
    };
    const QString binding = QStringLiteral(
        " Name it cfg_<parameter number> (cfg_101) and FormBinder::bind binds it to that parameter "
        "of the host's table; the QLabel whose buddy it is hides with it. Unbound it is a plain "
        "%1.");
    const QList<const BoundKind *> kinds = BoundKind::all();
    for (const Look &look : looks) {
        for (const BoundKind *kind : kinds) {
            const QMetaObject *meta = kind->metaObject;
            if (qstrcmp(meta->className(), look.name) != 0)
                continue;
            const QString base = QLatin1String(meta->superClass()->className());
            widgets.append(new TelecfgWidget(
                {QLatin1String(look.name), QLatin1String(kind->header), look.glyph, look.toolTip,
                 look.whatsThis + binding.arg(base), look.xml, kind->create},
                this));
        }
    }
    widgets.append(new TelecfgWidget(
        {QStringLiteral("StatusLabel"), QStringLiteral("telecfg/dialogs/statuslabel.h"),
         QStringLiteral("\u25CF"), QStringLiteral("Label for a live device value"),
         QStringLiteral("A label showing a live value in a state colour, highlighted for a while "
                        "when the value changes (setValue). Not bound to a parameter."),
         textProperty("Status"),
         [](QWidget *parent) -> QWidget * { return new StatusLabel(parent); }},
        this));
}
