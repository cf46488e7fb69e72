#include "tests/orvanta/reader_fixture.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

using DatasourceBuilding = ReaderFixture;

/// The calls from the first call to the controller on.
QStringList bindingOf(const QStringList& calls)
{
    const auto first = std::find_if(calls.begin(), calls.end(), [](const QString& call) {
        return call.startsWith(u"datasources "_s);
    });
    return calls.mid(std::distance(calls.begin(), first));
}

} // namespace

TEST_F(DatasourceBuilding, AListBoxStepsThroughItsEntries)
{
    readControls("<combo_box><ArrayOfAnyType><a>x</a><b/></ArrayOfAnyType></combo_box>");
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.first(), u"factory create 10015"_s) << "a scalable text";
    EXPECT_TRUE(calls.filter(u"setFontPointSize"_s).isEmpty());
    EXPECT_TRUE(calls.filter(u"setTextAlignment"_s).isEmpty());
    EXPECT_EQ(bindingOf(calls), QStringList({
                                    u"datasources createDatasource 'TextListDatasource'"_s,
                                    u"datasources getDatasource 1"_s,
                                    u"datasource:1 setDatasourceProperty 'TextList' ['x' '']"_s,
                                    u"item:1 setDatasourceId 1"_s,
                                    u"datasource:1 fields"_s,
                                    u"item:1 setDatasourceFields ['Value']"_s,
                                    u"datasource:1 fields"_s,
                                    u"datasource:1 setSelectedFields ['Value']"_s,
                                }));
}

TEST_F(DatasourceBuilding, AnEmptyListLeavesTheItemUnbound)
{
    readControls("<combo_box/><combo_box><ArrayOfAnyType/></combo_box>"
                 "<barcode><ArrayOfString/></barcode><swap_text_box><items/></swap_text_box>");
    EXPECT_EQ(host.itemCount(), 4);
    EXPECT_TRUE(callsOf("datasources").isEmpty());
}

TEST_F(DatasourceBuilding, AListOfOneBlankTextIsAList)
{
    readControls("<combo_box><ArrayOfAnyType><a/></ArrayOfAnyType></combo_box>");
    EXPECT_EQ(callsOf("datasource:1").first(), u"setDatasourceProperty 'TextList' ['']"_s);
}

TEST_F(DatasourceBuilding, TextsAndBarcodesBindTheirListsLast)
{
    readControls("<transparent_label><items><s>a</s></items></transparent_label>"
                 "<barcode><ArrayOfString><s>b</s><s>c</s></ArrayOfString></barcode>");
    const QStringList text = callsOf("item:1");
    EXPECT_EQ(text.mid(text.size() - 3), QStringList({
                                             u"setTextAlignment 132"_s,
                                             u"setDatasourceId 1"_s,
                                             u"setDatasourceFields ['Value']"_s,
                                         }));
    const QStringList barcode = callsOf("item:2");
    EXPECT_EQ(barcode.mid(barcode.size() - 3), QStringList({
                                                   u"setBarcodeType 8"_s,
                                                   u"setDatasourceId 2"_s,
                                                   u"setDatasourceFields ['Value']"_s,
                                               }));
    EXPECT_EQ(callsOf("datasource:2").first(), u"setDatasourceProperty 'TextList' ['b' 'c']"_s);
}

TEST_F(DatasourceBuilding, ADateOrTimeIsAlwaysBound)
{
    const struct
    {
        const char* format;
        const char* date;
        const char* time;
    } rows[] = {
        {"", "", ""},
        {"<format>1</format>", "MM-dd-yyyy", ""},
        {"<format>2</format>", "MM/dd/yy", ""},
        {"<format>4</format>", "", "HH:mm:ss"},
        {"<format>3</format>", "MM-dd-yyyy", "HH:mm:ss"},
        {"<format>abc</format>", "MM-dd-yyyy", "HH:mm:ss"},
    };
    int id = 0;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.format);
        host.forgetCalls();
        readControls(QByteArray("<date_time_picker>") + row.format + "</date_time_picker>");
        ++id;
        EXPECT_EQ(callsOf("factory"), QStringList(u"create 10015"_s));
        EXPECT_EQ(callsOf("datasources"), QStringList({u"createDatasource 'SystemDatasource'"_s,
                                                       u"getDatasource %1"_s.arg(id)}));
        const QByteArray name = "datasource:" + QByteArray::number(id);
        const QString property = u"setDatasourceProperty '%1' '%2'"_s;
        EXPECT_EQ(callsOf(name.constData()).mid(0, 2),
                  QStringList({property.arg(u"DateFormat"_s, QLatin1String(row.date)),
                               property.arg(u"TimeFormat"_s, QLatin1String(row.time))}));
    }
}

TEST_F(DatasourceBuilding, ACounterIsAlwaysBoundAndMarked)
{
    readControls("<numeric_up_down><minimum>1</minimum><maximum>99</maximum>"
                 "<incrememnt>2</incrememnt><read_only>true</read_only></numeric_up_down>");
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.first(), u"factory create 10015"_s);
    EXPECT_EQ(bindingOf(calls), QStringList({
                                    u"datasources createDatasource 'SequenceDatasource'"_s,
                                    u"datasources getDatasource 1"_s,
                                    u"datasource:1 setDatasourceProperty 'Start' 1"_s,
                                    u"datasource:1 setDatasourceProperty 'End' 99"_s,
                                    u"datasource:1 setDatasourceProperty 'Step' 2"_s,
                                    u"item:1 setDatasourceId 1"_s,
                                    u"datasource:1 fields"_s,
                                    u"item:1 setDatasourceFields ['Value']"_s,
                                    u"datasource:1 fields"_s,
                                    u"datasource:1 setSelectedFields ['Value']"_s,
                                    u"canvas setReadOnlyStateOnItemsInList true ['item:1']"_s,
                                }));
}

TEST_F(DatasourceBuilding, AnEmptyCounterStaysAtZeroAndMayBeEdited)
{
    readControls("<numeric_up_down><increment>5</increment></numeric_up_down>");
    EXPECT_EQ(callsOf("datasource:1").mid(0, 3),
              QStringList({u"setDatasourceProperty 'Start' 0"_s, u"setDatasourceProperty 'End' 0"_s,
                           u"setDatasourceProperty 'Step' 1"_s}));
    EXPECT_EQ(callsOf("canvas").last(), u"setReadOnlyStateOnItemsInList false ['item:1']"_s);
}

TEST_F(DatasourceBuilding, ASourceThatTheHostDoesNotMakeLeavesTheItemUnbound)
{
    host.behavior().hidesDatasources = true;
    readControls("<numeric_up_down/><date_time_picker/>");
    EXPECT_EQ(host.itemCount(), 2);
    EXPECT_TRUE(callsOf("item:1").filter(u"Datasource"_s).isEmpty());
    EXPECT_EQ(callsOf("canvas").filter(u"ReadOnly"_s).size(), 1);
    EXPECT_EQ(logText(), u"Left out of the label: a data source of the kind SequenceDatasource, "
                         "which the host did not make\n"
                         "Left out of the label: a data source of the kind SystemDatasource, "
                         "which the host did not make"_s);
}

TEST_F(DatasourceBuilding, WithoutAnItemNoSourceIsMade)
{
    host.behavior().refusedTypes = {KestTypes::SimpleText};
    readControls("<numeric_up_down/><date_time_picker/>"
                 "<combo_box><ArrayOfAnyType><a>x</a></ArrayOfAnyType></combo_box>");
    EXPECT_TRUE(callsOf("datasources").isEmpty());
    EXPECT_TRUE(callsOf("canvas").isEmpty());
    EXPECT_EQ(log.records().size(), 3);
}
