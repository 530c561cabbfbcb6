// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include <QPluginLoader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// The plugin named by TELECFG_DESIGNER_PLUGIN, else the one Designer would find: in the
// designer/ folder of a plugin path (QT_PLUGIN_PATH comes first).
QString pluginFile()
{
    const QString named = qEnvironmentVariable("TELECFG_DESIGNER_PLUGIN");
    if (!named.isEmpty())
        return named;
    for (const QString &path : QCoreApplication::libraryPaths()) {
        const QDir folder(path + QStringLiteral("/designer"));
        for (const QString &file : folder.entryList({QStringLiteral("*telecfg*_designer*")}))
            return folder.filePath(file);
    }

    return QString();
}

class TestDesignerPlugin : public QObject
{
    Q_OBJECT

private slots:
    void offersTheWidgets()
    {
        QPluginLoader loader(pluginFile());
        auto *collection =
            qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
        QVERIFY2(collection, qPrintable(loader.errorString()));

        const QMap<QString, QString> expected = {
            {"CfgCheckBox", "telecfg/controls/cfgcheckbox.h"},
            {"CfgComboBox", "telecfg/controls/cfgcombobox.h"},
            {"CfgLineEdit", "telecfg/controls/cfglineedit.h"},
            {"CfgSpinBox", "telecfg/controls/cfgspinbox.h"},
            {"CfgDoubleSpinBox", "telecfg/controls/cfgdoublespinbox.h"},
            {"CfgRadioButton", "telecfg/controls/cfgradiobutton.h"},
            {"CfgListWidget", "telecfg/collections/cfglistwidget.h"},
            {"CfgListEditor", "telecfg/collections/cfglisteditor.h"},
            {"CfgTableWidget", "telecfg/collections/cfgtablewidget.h"},
            {"StatusLabel", "telecfg/dialogs/statuslabel.h"},
        };
        QMap<QString, QString> offered;
        QWidget form;
        for (QDesignerCustomWidgetInterface *widget : collection->customWidgets()) {
            const QString name = widget->name();
            offered.insert(name, widget->includeFile());
            QCOMPARE(widget->group(), QStringLiteral("telecfg"));
            QVERIFY2(!widget->icon().isNull(), qPrintable(name));
            QVERIFY2(!widget->toolTip().isEmpty() && !widget->whatsThis().isEmpty(),
                     qPrintable(name));
            QVERIFY(!widget->isContainer());
            QVERIFY2(widget->domXml().contains(QStringLiteral("class=\"%1\"").arg(name)),
                     qPrintable(name));
            QVERIFY2(!widget->domXml().contains(QStringLiteral("name=\"cfg_")), qPrintable(name));
            // A dropped control is a working widget of its class, unbound.
            QWidget *created = widget->createWidget(&form);
            QVERIFY2(created, qPrintable(name));
            QCOMPARE(QString::fromLatin1(created->metaObject()->className()), name);
            created->show();
            QVERIFY(!created->grab().isNull());
        }
        QCOMPARE(offered, expected);
    }
};

QTEST_MAIN(TestDesignerPlugin)
#include "plugincheck.moc"
