// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <functional>

// One widget of the telecfg group in Qt Designer's widget box.
class TelecfgWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    struct Description
    {
        QString name;   // the class
        QString header; // the include path, "telecfg/controls/cfgspinbox.h"
        QString glyph;  // drawn on the icon
        QString toolTip;
        QString whatsThis;
        QString xml; // properties of a freshly dropped widget
        std::function<QWidget *(QWidget *)> create;
    };

    TelecfgWidget(const Description &widget, QObject *parent);

    QString name() const override { return description.name; }
    QString group() const override { return QStringLiteral("telecfg"); }
    QString toolTip() const override { return description.toolTip; }
    QString whatsThis() const override { return description.whatsThis; }
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override { return description.create(parent); }
    bool isInitialized() const override { return initialized; }
    void initialize(QDesignerFormEditorInterface *) override { initialized = true; }
    QString domXml() const override;

private:
    Description description;
    bool initialized = false;
};

// The collection Qt Designer loads: the eight bound controls and the status label.
class TelecfgDesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit TelecfgDesignerPlugin(QObject *parent = nullptr);
    QList<QDesignerCustomWidgetInterface *> customWidgets() const override { return widgets; }

private:
    QList<QDesignerCustomWidgetInterface *> widgets;
};
