// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// A tiny host: binds a check box to its own one-record table through the installed library.
#include "ui_form.h"

#include <telecfg/images/defaultimages.h>
#include <telecfg/telecfg.h>

#include <QApplication>
#include <QImage>
#include <cstdio>
#include <cstring>

namespace {
class Table : public MainConfigIFace
{
public:
    MainConfigObject records[16];
    int writes = 0;
    MainConfigObject &object(int ref) override { return records[ref & 15]; }
    QVariant value(int ref) override { return records[ref & 15].value; }
    void setValue(int ref, QVariant v) override
    {
        records[ref & 15].value = v;
        ++writes;
    }
    bool isValid(int) override { return true; }
    bool isModified(int) override { return false; }
    bool matchesStored(int, QVariant) override { return true; }
    QList<int> invalidItems(int) override { return {}; }
    QString nameOfUInt(quint32, QList<NamedUInt>) override { return {}; }
    QString nameOfUShort(quint16, QList<NamedUShort>) override { return {}; }
    QList<int> modifiedItems(int) override { return {}; }
    quint16 ushortOfName(QString, QList<NamedUShort>) override { return 0; }
    quint32 uintOfName(QString, QList<NamedUInt>) override { return 0; }
    bool isStoredItem(int, QVariant) override { return false; }
};
} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    initDefaultImages();
    const bool images = !QImage(QStringLiteral(":images/arrow.png")).isNull();
    setGUILicenseLevel(1);
    Table table;
    table.records[2].value = 10u;
    table.records[3].type = 22;
    table.records[3].minVersions[0] = 1;
    CfgCheckBox box;
    box.setReference(&table, 3, nullptr, {});
    box.setChecked(true);
    box.updateControl(1);
    // The firmware side and the network table through the same installed library.
    QByteArray check("123456789");
    QString country, network;
    networkNames(260u << 10 | 3u, country, network);
    // A designed form, bound in one call to the ready table.
    ParameterTable ready;
    ready.loadJson(R"({"version": 12, "parameters": [{"ref": 4, "minimum": 10, "maximum": 900,
                      "value": 250}, {"ref": 5, "type": 22, "value": 1}]})");
    QWidget form;
    Ui::ConsumerForm ui;
    ui.setupUi(&form);
    FormBinder binder;
    const bool bound = binder.bind(&form, &ready).isEmpty() && ui.cfg_4->value() == 250 &&
                       ui.cfg_5->isChecked() && ui.capacityLabel->buddy() == ui.cfg_4;
    std::printf("Qt %s, telecfg %s (built against %s), min version %d, writes %d, value %d, "
                "crc16 %04x, %s / %s\n",
                qVersion(), telecfgVersion(), TELECFG_VERSION_STRING,
                getConfigMinVersion(table.records[3]), table.writes, table.records[3].value.toInt(),
                unsigned(crc16(check)), qPrintable(country), qPrintable(network));
    return std::strcmp(telecfgVersion(), TELECFG_VERSION_STRING) == 0 && table.writes == 1 &&
                   table.records[3].value.toInt() == 1 && !network.isEmpty() && images && bound
               ? 0
               : 1;
}
