#include <gtest/gtest.h>

#include <string>

#include "messages/client_requests.h"
#include "messages/initialization_info.h"
#include "xml/serialize.h"
#include "xml/simple_xml.h"

namespace {

template <class Record>
Record Read(std::string const& children) {
    auto const document = "<m>" + children + "</m>";
    Record record;
    XMLSerialize(*SimpleXML::Parse(UStringRef<UTF8>(std::string_view(document))), record);
    return record;
}

TEST(ActionRequestTest, EveryFieldIsReadAndTheFirstOfEqualNamesCounts) {
    auto request = Read<ActionRequest>(
        "<ID>18446744073709551615</ID><ID>1</ID><Title> T </Title><ShortDescription>S</ShortDescription>"
        "<Deadline>Thu, 01 Jan 1970 01:00:05 +0100</Deadline><Preview></Preview>"
        "<PreActionMessage>&lt;sure?></PreActionMessage><Cancellable>yes</Cancellable><Restart>1</Restart>"
        "<Shutdown>True</Shutdown><ForceRun></ForceRun><RequestSave>false</RequestSave>"
        "<UseCannedStrings>0</UseCannedStrings>");
    EXPECT_EQ(request.id, 18446744073709551615u);
    EXPECT_EQ(request.title.AsStringView(), " T ");
    EXPECT_EQ(request.short_description.AsStringView(), "S");
    EXPECT_EQ(*request.Deadline(), Instant(5'000'000));
    EXPECT_TRUE(request.preview && request.preview->empty());
    EXPECT_EQ(request.pre_action_message->AsStringView(), "<sure?>");
    EXPECT_TRUE(request.cancellable && request.restart && request.shutdown && request.force_run);
    EXPECT_FALSE(request.request_save || request.use_canned_strings);
}

TEST(InitializationInfoTest, TranslationsAreTheFirstTopLevelFilesByLocaleThenLanguage) {
    std::string files;
    for (auto [name, content] : {std::pair("fr.xlat", "one"), {"FR.XLAT", "two"}, {"_brandFR.xlat", "three"}})
        files += "<SupportFiles><FileName>" + std::string(name) + "</FileName><Content>" + content +
                 "</Content></SupportFiles>";
    files += "<SupportFiles><FileName>de.xlat</FileName><SubFolder>below</SubFolder></SupportFiles>";
    auto const info = Read<InitializationInfo>(files);
    FileName const fr("fr"), fr_CA("fr_CA"), de("de"), none;
    EXPECT_EQ(info.GeneralLocalization(fr_CA, fr)->Content(), "one");
    EXPECT_EQ(info.LocalizedBrandTranslation(fr, none)->Content(), "three");
    EXPECT_FALSE(info.GeneralLocalization(de, none) || info.GeneralLocalization(none, none) || info.BrandTranslation());
}

}  // namespace
