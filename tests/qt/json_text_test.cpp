// JSON documents are written alike on both Qt versions: the expected texts are those of Qt 5.15.
#include "qt/json_text.h"

#include <gtest/gtest.h>
#include <limits>

#include <QJsonArray>
#include <QJsonObject>

namespace {

struct Row {
  const char* read;
  const char* written;
};

class NumbersOfJson : public testing::TestWithParam<Row> {};

TEST_P(NumbersOfJson, AreWrittenAsQt5WritesThem) {
  const QJsonDocument document = QJsonDocument::fromJson('[' + QByteArray(GetParam().read) + ']');
  const QByteArray expected = '[' + QByteArray(GetParam().written) + ']';
  EXPECT_EQ(qt::JsonText(document, QJsonDocument::Compact), expected) << GetParam().read;
  // A computed number is written like one that was read.
  const QJsonArray computed{document.array().at(0).toDouble()};
  EXPECT_EQ(qt::JsonText(QJsonDocument(computed), QJsonDocument::Compact), expected) << GetParam().read;
}

const Row kRows[] = {
    {"0", "0"},
    {"-0.0", "0"},
    {"1e5", "100000"},
    {"2.50", "2.5"},
    {"123456789.125", "123456789.125"},
    {"9007199254740991", "9007199254740991"},  // 2^53 - 1
    {"9007199254740993", "9007199254740992"},  // beyond 2^53 a double holds only even integers
    {"-9007199254740993", "-9007199254740992"},
    {"1e16", "10000000000000000"},
    {"9223372036854775807", "9223372036854776000"},  // 2^63 - 1: the shortest digits that read back as its double
    {"-9223372036854775808", "-9223372036854776000"},
    {"1e19", "10000000000000000000"},
    {"18446744073709551616", "18446744073709552000"},  // 2^64
    {"1e21", "1e+21"},
    {"0.0001", "0.0001"},
    {"0.0008", "0.0008"},
    {"0.00012", "0.00012"},
    {"0.00009", "9e-05"},
    {"1.7976931348623157e308", "1.7976931348623157e+308"},
    {"5e-324", "5e-324"},
};

INSTANTIATE_TEST_SUITE_P(Rows, NumbersOfJson, testing::ValuesIn(kRows));

TEST(JsonText, HasFourColumnsALevel) {
  const QJsonDocument document =
      QJsonDocument::fromJson(R"({"b":[],"a":{},"\u00e9":[1,{"x":null,"\"":true}],"t":"\u2028\u0001/\ud800"})");
  EXPECT_EQ(qt::JsonText(document).toStdString(),
            "{\n"
            "    \"a\": {\n"
            "    },\n"
            "    \"b\": [\n"
            "    ],\n"
            "    \"t\": \"\u2028\\u0001/\\ud800\",\n"
            "    \"\u00e9\": [\n"
            "        1,\n"
            "        {\n"
            "            \"\\\"\": true,\n"
            "            \"x\": null\n"
            "        }\n"
            "    ]\n"
            "}\n");
  EXPECT_EQ(qt::JsonText(document, QJsonDocument::Compact).toStdString(),
            "{\"a\":{},\"b\":[],\"t\":\"\u2028\\u0001/\\ud800\",\"\u00e9\":[1,{\"\\\"\":true,\"x\":null}]}");
}

TEST(JsonText, OfWhatIsNoNumberIsNull) {
  const QJsonArray values{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()};
  EXPECT_EQ(qt::JsonText(QJsonDocument(values), QJsonDocument::Compact), "[null,null]");
}

TEST(JsonText, OfNoDocumentIsEmpty) { EXPECT_EQ(qt::JsonText(QJsonDocument()), ""); }

}  // namespace
