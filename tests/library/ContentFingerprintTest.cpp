// Rules: Library files
#include "library/ContentFingerprint.h"

#include <gtest/gtest.h>
#include <string>

TEST(ContentFingerprint, IsThePublishedHash) {
    const auto fox = ContentFingerprint::Of("The quick brown fox jumps over the lazy dog");
    EXPECT_EQ(fox, (ContentFingerprint{43, 0xE34BBC7BBC071B6C, 0x7A433CA9C49A9347}));
    EXPECT_EQ(ContentFingerprint::Of(""), (ContentFingerprint{0, 0, 0}));
}

TEST(ContentFingerprint, DiffersWithEveryByteAndTheLength) {
    for (std::size_t length = 1; length <= 40; ++length) {
        const std::string content(length, 'x');
        const auto fingerprint = ContentFingerprint::Of(content);
        EXPECT_EQ(fingerprint, ContentFingerprint::Of(std::string(length, 'x')));
        EXPECT_FALSE(fingerprint == ContentFingerprint::Of(content + '\0'));
        for (std::size_t place = 0; place < length; ++place) {
            std::string changed = content;
            changed[place] = 'y';
            EXPECT_FALSE(fingerprint == ContentFingerprint::Of(changed)) << length << " " << place;
        }
    }
}
