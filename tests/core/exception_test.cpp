// The texts of exceptions, and the bases that catch them.

#include "core/MathExceptions.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* fixed_text = "Resource string not implemented";

TEST(Exception, CarriesTheTextItWasMadeFrom) {
    EXPECT_EQ(core::Exception("no such layer").getMessage(), "no such layer");
    EXPECT_EQ(core::Exception(std::string("gone")).getMessage(), "gone");
    EXPECT_EQ(core::Exception(42ul).getMessage(), fixed_text);
    EXPECT_EQ(core::Exception(0).getMessage(), fixed_text) << "an identifier, not a null text";
}

TEST(Exception, ReplacesItsTextByTheFormatUnformatted) {
    core::Exception e("first");
    e.message("%d of %d", 1, 2);
    EXPECT_EQ(e.getMessage(), "%d of %d");
    e.message(0, "ignored");
    EXPECT_EQ(e.getMessage(), fixed_text);
}

TEST(Exception, AllAreCaughtAsTheirBases) {
    const float values[16] = {};
    try {
        throw VectorInFocusException(0, values);
    } catch (const MatrixException& e) {
        EXPECT_EQ(e.getMessage(), fixed_text);
    }
    EXPECT_THROW(throw SingularMatrix3DException(0), MathException);
    EXPECT_THROW(throw VectorInFocusException(0), core::Exception);
    EXPECT_THROW(throw core::OutOfMemoryException(0), core::Exception);
}

} // namespace
