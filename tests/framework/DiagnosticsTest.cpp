// Tests of the helpers that assertions stand on.

namespace {

class Broken : public CObject {
public:
    void AssertValid() const override { AfxAssertFailed("m_count >= 0", "Broken.cpp", 12); }
};

} // namespace

TEST(Diagnostics, AddressesAreValidWhereThereIsMemoryOfThatKind) {
    int value = 0;
    EXPECT_TRUE(AfxIsValidAddress(&value, sizeof(value)));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_FALSE(AfxIsValidAddress(reinterpret_cast<void*>(8), 1));
    const auto* code = reinterpret_cast<const void*>(&AfxIsValidAddress);
    EXPECT_TRUE(AfxIsValidAddress(code, 1, FALSE));
    EXPECT_FALSE(AfxIsValidAddress(code, 1, TRUE));
}

TEST(Diagnostics, AnAddressIsInvalidWhenItsMemoryEndsTooEarly) {
    auto* page = static_cast<BYTE*>(::VirtualAlloc(nullptr, 0x20000, MEM_RESERVE, PAGE_NOACCESS));
    ASSERT_NE(page, nullptr);
    ASSERT_NE(::VirtualAlloc(page, 0x1000, MEM_COMMIT, PAGE_READWRITE), nullptr);
    EXPECT_TRUE(AfxIsValidAddress(page, 0x1000));
    EXPECT_FALSE(AfxIsValidAddress(page, 0x1001));
    ::VirtualFree(page, 0, MEM_RELEASE);
}

TEST(DiagnosticsDeathTest, AFailedAssertionNamesItsPlaceAndStopsTheProgram) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH(AfxAssertFailed("width > 0", "Column.cpp", 7), "Column.cpp.7.: assertion failed: width > 0");
}

TEST(DiagnosticsDeathTest, AnObjectFindsItsOwnFaults) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const Broken broken;
    EXPECT_DEATH(AfxAssertValidObject(&broken, "Caller.cpp", 1), "Broken.cpp.12.");
    EXPECT_DEATH(AfxAssertValidObject(nullptr, "Caller.cpp", 3), "Caller.cpp.3.");
}
