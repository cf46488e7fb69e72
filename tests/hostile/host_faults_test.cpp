// A host that does not do its part: it makes no items or wrong ones, has no data sources,
// loses symbols, or deletes what it is given. An import leaves out what it cannot have, says
// so in the log, and continues.

#include "tests/hostile/complete_labels.h"
#include "tests/hostile/importing.h"
#include "tests/support/captured_log.h"
#include "tests/support/test_host/test_host.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Conversion = recorder::Behavior::Conversion;

namespace {

enum class Making { Nothing, WrongClass };

constexpr ReaderKind EveryKind[] = {ReaderKind::Tavrel, ReaderKind::Orvanta,
                                    ReaderKind::OpenDocument};

const CompleteLabels& labels()
{
    static const CompleteLabels labels;
    return labels;
}

std::string nameOf(ReaderKind reader)
{
    return reader == ReaderKind::Tavrel    ? "Tavrel"
           : reader == ReaderKind::Orvanta ? "Orvanta"
                                           : "OpenDocument";
}

int sumOf(const CompleteLabels::Counts& counts)
{
    int sum = 0;
    for (const auto& [type, count] : counts) {
        sum += count;
    }
    return sum;
}

/// Every kind that a reader asks for, with the ways not to make it.
struct Fault
{
    ReaderKind reader;
    KestTypes::ShapeType type;
    Making making;
};

std::vector<Fault> allFaults()
{
    std::vector<Fault> faults;
    for (const ReaderKind reader : EveryKind) {
        for (const auto& [type, count] : CompleteLabels::items(reader)) {
            faults.push_back({reader, type, Making::Nothing});
            faults.push_back({reader, type, Making::WrongClass});
        }
    }
    return faults;
}

std::string nameOfFault(const testing::TestParamInfo<Fault>& info)
{
    const Fault& fault = info.param;
    return nameOf(fault.reader) + "_" + QByteArray::number(int(fault.type), 16).toStdString() +
           (fault.making == Making::Nothing ? "_nothing" : "_wrong");
}

class HostFaults : public testing::Test
{
protected:
    bool import(ReaderKind reader) { return importBy(importer, reader, labels().path(reader)); }
    [[nodiscard]] int refusals(const char* words) const
    {
        return int(log.messages().filter(QString::fromLatin1(words)).size());
    }
    [[nodiscard]] int refusedItems() const
    {
        // The three readers each have their own words for it.
        return refusals("made no item") + refusals("gives no item of the class");
    }

    CapturedLog log;
    TestHost host;
    LegacyTemplateImporter importer{host.canvas(), host.files(), host.datasources()};
};

class MissingItem : public HostFaults, public testing::WithParamInterface<Fault>
{};

// The only fault that stops a program: no host can do without lines.
bool stopsTheProcess(const Fault& fault)
{
    return fault.reader == ReaderKind::Tavrel && fault.type == KestTypes::Line &&
           fault.making == Making::Nothing;
}

} // namespace

class EveryReader : public HostFaults, public testing::WithParamInterface<ReaderKind>
{};

INSTANTIATE_TEST_SUITE_P(Readers, EveryReader, testing::ValuesIn(EveryKind),
                         [](const auto& row) { return nameOf(row.param); });

TEST_P(EveryReader, ImportsTheCompleteLabelIntoAHostWithoutFaults)
{
    EXPECT_TRUE(import(GetParam()));
    for (const auto& [type, count] : CompleteLabels::items(GetParam())) {
        EXPECT_EQ(host.itemCount(type), count) << std::hex << type;
    }
    EXPECT_EQ(host.itemCount(), sumOf(CompleteLabels::items(GetParam())));
    EXPECT_EQ(refusedItems(), 0) << qPrintable(log.messages().join(u'\n'));
    EXPECT_EQ(host.count(u"completeCanvasLoading"_s), 1);
}

INSTANTIATE_TEST_SUITE_P(Faults, MissingItem, testing::ValuesIn(allFaults()), nameOfFault);

TEST_P(MissingItem, IsLeftOutAndSaid)
{
    const Fault fault = GetParam();
    (fault.making == Making::Nothing ? host.behavior().refusedTypes
                                     : host.behavior().mismatchedTypes) = {fault.type};
    if (stopsTheProcess(fault)) {
        EXPECT_DEATH((void)import(fault.reader), "makes no lines");
        return;
    }
    EXPECT_TRUE(import(fault.reader));
    EXPECT_EQ(host.count(u"completeCanvasLoading"_s), 1);
    const auto expected = CompleteLabels::items(fault.reader);
    EXPECT_EQ(host.itemCount(fault.type), 0);
    EXPECT_EQ(refusedItems(), expected.at(fault.type)) << qPrintable(log.messages().join(u'\n'));
    for (const auto& [type, count] : expected) {
        // A drawing's text is removed with the box that contains it.
        if (type != fault.type && type != KestTypes::RichText) {
            EXPECT_EQ(host.itemCount(type), count) << std::hex << type;
        }
    }
}

TEST_P(EveryReader, ImportsNothingOntoACanvasWithoutAFactory)
{
    host.behavior().hasFactory = false;
    LegacyTemplateImporter poor(host.canvas(), host.files(), host.datasources());
    (void)importBy(poor, GetParam(), labels().path(GetParam()));
    EXPECT_EQ(host.itemCount(), 0);
    EXPECT_GE(refusedItems(), sumOf(CompleteLabels::items(GetParam())) - 2)
        << "but for the texts of boxes that are not there: "
        << qPrintable(log.messages().join(u'\n'));
}

TEST_P(EveryReader, ContinuesWhenTheCanvasDeletesItems)
{
    host.behavior().deletesItems = true;
    EXPECT_TRUE(import(GetParam()));
    EXPECT_EQ(host.itemCount(), 0);
    EXPECT_GE(host.count(u"importItem"_s), sumOf(CompleteLabels::items(GetParam())) - 2);
    EXPECT_EQ(host.count(u"completeCanvasLoading"_s), 1);
}

TEST_F(HostFaults, AnItemThatTheCanvasDeletesBeforeItIsSetUpIsSaid)
{
    host.behavior().deletesItems = true;
    EXPECT_TRUE(import(ReaderKind::Tavrel));
    EXPECT_EQ(refusals("deleted the item"), 1) << "only texts are set up in the canvas";
    EXPECT_TRUE(import(ReaderKind::Orvanta));
    EXPECT_EQ(refusals("which the host deleted when it got it"),
              sumOf(CompleteLabels::items(ReaderKind::Orvanta)));
    host.forgetCalls();
    EXPECT_TRUE(import(ReaderKind::OpenDocument));
    EXPECT_EQ(refusals("deleted an item when it got it"), host.count(u"importItem"_s));
}

TEST_P(EveryReader, ContinuesWithoutADataSource)
{
    host.behavior().hidesDatasources = true;
    EXPECT_TRUE(import(GetParam()));
    EXPECT_EQ(host.itemCount(), sumOf(CompleteLabels::items(GetParam())));
    EXPECT_EQ(refusals("does not have the data source") + refusals("a data source of the kind"),
              host.count(u"createDatasource"_s));
    EXPECT_EQ(host.count(u"createDatasource"_s) > 0, GetParam() != ReaderKind::OpenDocument);
}

TEST_P(EveryReader, BindsToASourceWithoutFields)
{
    host.behavior().sourcesHaveFields = false;
    EXPECT_TRUE(import(GetParam()));
    EXPECT_EQ(host.itemCount(), sumOf(CompleteLabels::items(GetParam())));
}

class SymbolFaults : public HostFaults,
                     public testing::WithParamInterface<std::tuple<ReaderKind, Conversion>>
{};

INSTANTIATE_TEST_SUITE_P(Readers, SymbolFaults,
                         testing::Combine(testing::ValuesIn(EveryKind),
                                          testing::Values(Conversion::Fails,
                                                          Conversion::StaysEmpty)));

TEST_P(SymbolFaults, CostNothingButTheSymbol)
{
    const auto [reader, conversion] = GetParam();
    host.behavior().conversion = conversion;
    EXPECT_TRUE(import(reader));
    const int all = sumOf(CompleteLabels::items(reader));
    // A drawing keeps the place of a symbol that its host has lost.
    const bool keepsPlace =
        reader == ReaderKind::OpenDocument && conversion == Conversion::StaysEmpty;
    EXPECT_EQ(host.itemCount(), keepsPlace ? all : all - 1);
}
