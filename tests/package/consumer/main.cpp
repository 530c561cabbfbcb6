// A tiny host: binds a check box to its own one-record table through the installed library.
#include <telecfg/config/mainconfig.h>
#include <telecfg/controls/cfgcheckbox.h>
#include <telecfg/dialogs/gui.h>

#include <QApplication>
#include <cstdio>

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
    setGUILicenseLevel(1);
    Table table;
    table.records[2].value = 10u;
    table.records[3].type = 22;
    table.records[3].minVersions[0] = 1;
    CfgCheckBox box;
    box.setReference(&table, 3, nullptr, {});
    box.setChecked(true);
    box.updateControl(1);
    std::printf("min version %d, writes %d, value %d\n", getConfigMinVersion(table.records[3]),
                table.writes, table.records[3].value.toInt());
    return table.writes == 1 && table.records[3].value.toInt() == 1 ? 0 : 1;
}
