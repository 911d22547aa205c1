// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/XbelContent.h"

#include <gtest/gtest.h>

#include <string>

namespace tessera {
namespace {

TEST(XbelContent, OrderAndBlanksSayNothing)
{
    EXPECT_TRUE(saysAll(
        "<xbel><b href='2'/> <b visited='2020-01-02T03:04:05Z' href='1'>\n<t>x</t>\n</b></xbel>",
        "<xbel><b href='1' visited='2020-01-02T03:04:05.000Z'><t> x </t></b><b href='2'/></xbel>"));
}

/// Copies that say other things than the original, though nothing is missing but its place.
struct Exchange {
    const char* name;
    std::string original;
    std::string copy;
};

class XbelContentExchanged : public testing::TestWithParam<Exchange> { };

TEST_P(XbelContentExchanged, IsNotTheSame)
{
    EXPECT_FALSE(saysAll(GetParam().copy, GetParam().original));
}

INSTANTIATE_TEST_SUITE_P(
    Between,
    XbelContentExchanged,
    testing::Values(
        Exchange{
            "BookmarksTexts",
            "<x><b href='1'><t>one</t></b><b href='2'><t>two</t></b></x>",
            "<x><b href='1'><t>two</t></b><b href='2'><t>one</t></b></x>"},
        Exchange{
            "BookmarksCounts",
            "<x><b href='1' count='3'/><b href='2' count='4'/></x>",
            "<x><b href='1' count='4'/><b href='2' count='3'/></x>"},
        Exchange{
            "ProgramsCounts",
            "<x><a name='1' count='3'/><a name='2' count='4'/></x>",
            "<x><a name='1' count='4'/><a name='2' count='3'/></x>"},
        Exchange{
            "OwnersNotes",
            "<x><m owner='1'>one</m><m owner='2'>two</m></x>",
            "<x><m owner='1'>two</m><m owner='2'>one</m></x>"},
        Exchange{
            "TypesNotes",
            "<x><m type='1'>one</m><m type='2'>two</m></x>",
            "<x><m type='1'>two</m><m type='2'>one</m></x>"},
        Exchange{
            "AttributesOfAnElement",
            "<x><b added='2020-01-02T03:04:05Z' visited='2021-01-02T03:04:05Z'/></x>",
            "<x><b added='2021-01-02T03:04:05Z' visited='2020-01-02T03:04:05Z'/></x>"},
        Exchange{"ElementsTexts", "<x><t>one</t><d>two</d></x>", "<x><t>two</t><d>one</d></x>"},
        Exchange{"TextAndMore", "<x><t>one</t></x>", "<x><t>two</t><d>three</d></x>"}),
    [](const auto& exchange) { return std::string(exchange.param.name); });

} // namespace
} // namespace tessera
