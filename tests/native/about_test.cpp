// What the control tells of its library.
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

std::u16string version_text(const LibraryVersion& version) {
    HeadlessControl combo(Mode::run, Stage::created);
    combo.library.current = version;
    return combo.about().Version();
}

AboutTexts box_texts(const LibraryVersion& version) {
    HeadlessControl combo(Mode::design, Stage::created);
    combo.library.current = version;
    combo.about().ShowAboutBox();
    return combo.library.shown.at(0);
}

} // namespace

TEST(Version, PadsMinorNumberAndRevision) {
    EXPECT_EQ(version_text({u"VelloraCTL", 1, 2, 37}), u"VelloraCTL v1.02 Build 0037");
    EXPECT_EQ(version_text({u"VelloraCTL", 2, 0, 1}), u"VelloraCTL v2.00 Build 0001");
}

TEST(Version, GivesLargeNumbersInFull) {
    EXPECT_EQ(version_text({u"VelloraCTL", 10, 100, 65535}), u"VelloraCTL v10.100 Build 65535");
    EXPECT_EQ(version_text({u"VelloraCTL", 0, 99, 9999}), u"VelloraCTL v0.99 Build 9999");
}

TEST(About, GivesTheNumbersPlainly) {
    EXPECT_EQ(box_texts({u"VelloraCTL", 1, 2, 37}).version, u"Version 1.2.37");
    EXPECT_EQ(box_texts({u"VelloraCTL", 2, 0, 1}).version, u"Version 2.0.1");
}

TEST(About, NamesTheLibrary) {
    const AboutTexts texts = box_texts({u"Another name", 1, 0, 0});
    EXPECT_EQ(texts.caption, u"About Another name");
    EXPECT_EQ(texts.title, u"Another name");
}

TEST(About, ShowsOneBoxACallAndChangesNothing) {
    HeadlessControl combo;
    combo.about().ShowAboutBox();
    combo.about().ShowAboutBox();
    EXPECT_EQ(combo.library.shown.size(), 2u);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

} // namespace vellora::test
