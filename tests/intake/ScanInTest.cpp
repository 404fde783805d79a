#include <cstdlib>

#include "app/Reason.h"
#include "intake/IntakeWorld.h"
#include "intake/ScanIn.h"
#include "support/Faults.h"
#include "support/KeptTestDevice.h"

namespace tavrene::intake {
namespace {

using test::Has;
using test::WriteText;
using Names = std::vector<std::string>;

// The scanner library with its own test device, which feeds ten pages.
class ScanInTest : public test::IntakeWorld {
  protected:
    static void SetUpTestSuite() {
        test::KeepTestDevice();
        ::setenv("SANE_CONFIG_DIR", Config().Path().c_str(), 1);
        WriteText(Config().File("dll.conf"), "test\n");
    }

    // One for all tests, since the library asks for its place only once.
    static const test::TempFolder& Config() {
        static const test::TempFolder folder;
        return folder;
    }

    Scanned Scan(const std::string& device, const std::string& mode, const ScanWatch& watch = GoesOn) {
        WriteText(Config().File("test.conf"), device);
        Scanners scanners(sane_);
        const std::vector<ScanDevice> devices = scanners.Find();
        if (devices.size() != 2)
            return {{}, "there is no test device"};
        Scanner scanner(sane_, devices[0]);
        choices_ = scanner.Choices();
        ScanSettings settings{source_, {}, 100, 50, 70};
        for (const ScanMode& each : choices_.modes)
            if (each.label == mode)
                settings.mode = each;
        return ScanIn(files_, folders_, {2024, 3, 5, 14, 9, 7}, scanner, settings, watch);
    }

    static bool GoesOn(std::size_t /*pages*/) { return true; }

    SaneLibrary sane_ = *FindSane();
    std::string source_ = "Automatic Document Feeder";
    ScanChoices choices_;
};

TEST_F(ScanInTest, AFeederGivesAllOfItsPagesUnderNamesThatNothingHas) {
    WriteText(folders_.ProcessOut + "scan-20240305-140907-p002.xml", "of another form");
    const Scanned scanned = Scan("test-picture \"Solid black\"\n", "Black and white");
    EXPECT_EQ(scanned.reason, "");
    ASSERT_EQ(scanned.images.size(), 10U);
    EXPECT_EQ(scanned.images.front() + scanned.images[1] + scanned.images.back(),
              "scan-20240305-140907-p001.tifscan-20240305-140907-2-p002.tifscan-20240305-140907-p010.tif");
    EXPECT_EQ(In(folders_.ProcessIn).size(), 10U);
    const imaging::Bitmap page = Incoming(scanned.images.front());
    EXPECT_EQ(DpiOf(page), 100);
    EXPECT_NEAR(page.Width(), 197, 2) << "50 mm";
    EXPECT_NEAR(page.Height(), 276, 2) << "70 mm";
    samples::Canvas black(page.Width(), page.Height(), 100);
    black.FillRect(0, 0, page.Width(), page.Height());
    ExpectSame(page, samples::ToBilevel(black), "black");
    EXPECT_EQ(choices_.resolutions.front(), 100);
    EXPECT_EQ(choices_.sources, (Names{"Flatbed", "Automatic Document Feeder"}));
}

TEST_F(ScanInTest, AFlatbedGivesOnePageOfTheKindThatWasChosen) {
    source_ = "Flatbed";
    struct Case {
        const char* device;
        const char* mode;
        const char* extension;
        int bits;
    };
    for (const Case& each : {Case{"test-picture \"Color pattern\"\n", "Grey", ".png", 8},
                             Case{"test-picture \"Color pattern\"\n", "Colour", ".png", 24},
                             Case{"test-picture \"Color pattern\"\ndepth 16\n", "Colour", ".png", 24},
                             Case{"test-picture \"Grid\"\n", "Black and white", ".tif", 1},
                             Case{"test-picture \"Grid\"\n", "Grey", ".tif", 1}}) {
        SCOPED_TRACE(each.mode);
        const Scanned scanned = Scan(each.device, each.mode);
        ASSERT_EQ(scanned.images.size(), 1U) << scanned.reason;
        EXPECT_TRUE(Has(scanned.images[0], each.extension));
        EXPECT_EQ(Incoming(scanned.images[0]).BitsPerPixel(), each.bits);
    }
}

TEST_F(ScanInTest, WhatEndsItIsToldAndThePagesBeforeStay) {
    int page = 0;
    const auto usual = sane_.Start;
    const auto endsWith = [&](SANE_Status status, int at) {
        page = 0;
        sane_.Start = [&, status, at](SANE_Handle handle) { return ++page == at ? status : usual(handle); };
        return Scan("", "Black and white");
    };
    Scanned scanned = endsWith(SANE_STATUS_JAMMED, 3);
    EXPECT_EQ(scanned.images.size(), 2U);
    EXPECT_EQ(scanned.reason, "The paper is jammed, or the feeder has drawn in two sheets at once.");
    EXPECT_EQ(In(folders_.ProcessIn), scanned.images);
    scanned = endsWith(SANE_STATUS_NO_DOCS, 1);
    EXPECT_EQ(std::to_string(scanned.images.size()) + scanned.reason, "0The feeder is empty.");
    scanned = endsWith(SANE_STATUS_COVER_OPEN, 2);
    EXPECT_EQ(std::to_string(scanned.images.size()) + scanned.reason, "1The cover of the scanner is open.");
    sane_.Start = usual;

    scanned = Scan("", "Grey", [](std::size_t pages) { return pages < 2; });
    EXPECT_TRUE(scanned.isCancelled);
    EXPECT_EQ(std::to_string(scanned.images.size()) + scanned.reason, "2");
    // In the middle of a page. The page is taken from the device all the same, whose own thread does not
    // always survive being stopped.
    const auto read = sane_.Read;
    for (const auto& [status, reason] : {std::pair{SANE_STATUS_JAMMED, "jammed"},
                                         {SANE_STATUS_IO_ERROR, "does not answer"},
                                         {SANE_STATUS_CANCELLED, "at the scanner"}}) {
        sane_.Read = [&, end = status](SANE_Handle handle, SANE_Byte* data, SANE_Int most, SANE_Int* length) {
            const SANE_Status usualEnd = read(handle, data, most, length);
            return usualEnd == SANE_STATUS_EOF ? end : usualEnd;
        };
        scanned = Scan("", "Grey");
        EXPECT_EQ(scanned.images, Names());
        EXPECT_PRED2(Has, scanned.reason, reason);
    }
    sane_.Read = read;
    files_.refuse = [](const std::string& operation, const std::string& path) {
        return operation == "write" && Has(path, "-p003");
    };
    scanned = Scan("", "Grey");
    EXPECT_EQ(scanned.images.size(), 2U);
    EXPECT_PRED2(Has, scanned.reason, "Cannot write ");
}

TEST_F(ScanInTest, WhatTheDeviceItselfReportsIsToldInPlainWords) {
    for (const auto& [status, reason] :
         {std::pair{"SANE_STATUS_JAMMED",
                    "The paper is jammed, or the feeder has drawn in two sheets at once."},
          {"SANE_STATUS_COVER_OPEN", "The cover of the scanner is open."},
          {"SANE_STATUS_NO_DOCS", "The feeder is empty."}}) {
        const Scanned scanned = Scan("read-status-code \"" + std::string(status) + "\"\n", "Grey");
        EXPECT_EQ(scanned.images, Names());
        EXPECT_EQ(scanned.reason, reason);
    }
    EXPECT_EQ(In(folders_.ProcessIn), Names()) << "no half page";
}

// The test device has no such options.
TEST_F(ScanInTest, ADeviceThatCanNoticeDoubleFeedsIsToldToStopAtThem) {
    static const SANE_String_Const actions[] = {"Default", "Continue", "Stop", nullptr};
    std::vector<SANE_Option_Descriptor> options(4);
    const char* const names[] = {"", "df-action", "df-thickness", "double-feed"};
    for (std::size_t k = 1; k < options.size(); ++k) {
        options[k].name = names[k];
        options[k].type = k == 1 ? SANE_TYPE_STRING : SANE_TYPE_BOOL;
        options[k].size = k == 1 ? 9 : sizeof(SANE_Word);
        options[k].cap = SANE_CAP_SOFT_SELECT;
    }
    options[1].constraint_type = SANE_CONSTRAINT_STRING_LIST;
    options[1].constraint.string_list = actions;
    options[3].cap = SANE_CAP_SOFT_DETECT;  // a sensor, which cannot be set
    sane_.GetOption = [&](SANE_Handle, SANE_Int k) -> const SANE_Option_Descriptor* {
        return k < static_cast<SANE_Int>(options.size()) ? &options[static_cast<std::size_t>(k)] : nullptr;
    };
    std::string set;
    sane_.ControlOption = [&](SANE_Handle, SANE_Int k, SANE_Action, void* value, SANE_Int*) {
        set += names[k];
        set += k == 1 ? std::string("=") + static_cast<const char*>(value) + " "
                      : "=" + std::to_string(*static_cast<const SANE_Word*>(value)) + " ";
        return SANE_STATUS_GOOD;
    };
    sane_.Start = [](SANE_Handle) { return SANE_STATUS_JAMMED; };
    EXPECT_PRED2(Has, Scan("", "").reason, "drawn in two sheets at once");
    EXPECT_EQ(set, "df-action=Stop df-thickness=1 ");
}

TEST_F(ScanInTest, WhatTheDeviceMakesOfItsSettingsCounts) {
    const auto usual = sane_.ControlOption;
    const auto setsTo = [&](const std::string& name, SANE_Status status, SANE_Word number) {
        sane_.ControlOption = [=, this](SANE_Handle handle, SANE_Int k, SANE_Action action, void* value,
                                        SANE_Int* info) {
            if (action != SANE_ACTION_SET_VALUE || sane_.GetOption(handle, k)->name != name)
                return usual(handle, k, action, value, info);
            if (status == SANE_STATUS_GOOD)
                return usual(handle, k, action, &(*static_cast<SANE_Word*>(value) = number), info);
            return status;
        };
        return app::FailureOf([&] { EXPECT_EQ(Scan("", "Grey").reason, ""); });
    };
    source_ = "Flatbed";
    for (const std::string name : {"source", "mode", "resolution"})
        EXPECT_EQ(setsTo(name, SANE_STATUS_INVAL, 0),
                  "The scanner refuses the " + name + " that was chosen.");
    EXPECT_PRED2(Has, setsTo("mode", SANE_STATUS_IO_ERROR, 0), "does not answer");
    EXPECT_EQ(setsTo("enable-test-options", SANE_STATUS_INVAL, 0), "");
    // Rounded, so that the page comes with the resolution that it has.
    EXPECT_EQ(setsTo("resolution", SANE_STATUS_GOOD, SANE_FIX(75)), "");
    const Names images = In(folders_.ProcessIn);
    ASSERT_EQ(images.size(), 2U);
    EXPECT_EQ(std::to_string(DpiOf(Incoming(images[0]))) + " " + std::to_string(DpiOf(Incoming(images[1]))),
              "75 100");
}

// The test device is not like that.
TEST_F(ScanInTest, ADeviceThatIsNothingButAFeederGoesOnWithoutAChoiceOfSource) {
    const auto devices = sane_.GetDevices;
    const auto option = sane_.GetOption;
    const auto start = sane_.Start;
    SANE_Device first{};
    SANE_Option_Descriptor nameless{};
    std::vector<const SANE_Device*> list;
    const auto pagesOf = [&](const char* type) {
        sane_.GetDevices = [&, type](const SANE_Device*** found, SANE_Bool local) {
            const SANE_Status status = devices(found, local);
            first = ***found;
            first.type = type;
            list = {&first, (*found)[1], nullptr};
            *found = list.data();
            return status;
        };
        sane_.GetOption = [&](SANE_Handle handle, SANE_Int k) {
            const SANE_Option_Descriptor* const usual = option(handle, k);
            const bool isSource = usual != nullptr && usual->name == std::string("source");
            return isSource ? &nameless : usual;
        };
        int page = 0;
        sane_.Start = [&](SANE_Handle handle) { return ++page == 4 ? SANE_STATUS_NO_DOCS : start(handle); };
        const Scanned scanned = Scan("", "Grey");
        EXPECT_EQ(scanned.reason, "");
        return scanned.images.size();
    };
    source_ = "";
    EXPECT_EQ(pagesOf("sheetfed scanner"), 3U);
    EXPECT_EQ(pagesOf("flatbed scanner"), 1U);
    EXPECT_EQ(pagesOf("multi-function peripheral"), 1U) << "it would take the page on its glass for ever";
}

TEST_F(ScanInTest, LinesThatAreShorterThanTheirPageAreRefused) {
    sane_.Start = [](SANE_Handle) { return SANE_STATUS_GOOD; };
    for (const SANE_Parameters& each : {SANE_Parameters{SANE_FRAME_GRAY, SANE_TRUE, 12, 100, -1, 1},
                                        {SANE_FRAME_GRAY, SANE_TRUE, 99, 100, -1, 8},
                                        {SANE_FRAME_GRAY, SANE_TRUE, 199, 100, -1, 16},
                                        {SANE_FRAME_RGB, SANE_TRUE, 299, 100, -1, 8}}) {
        sane_.GetParameters = [&](SANE_Handle, SANE_Parameters* kind) {
            *kind = each;
            return SANE_STATUS_GOOD;
        };
        EXPECT_PRED2(Has, Scan("", "Grey").reason, "in a way that is not known here");
    }
}

TEST_F(ScanInTest, CancellingTakesEffectInTheMiddleOfAPage) {
    bool isStopped = false;
    sane_.Start = [](SANE_Handle) { return SANE_STATUS_GOOD; };
    sane_.GetParameters = [](SANE_Handle, SANE_Parameters* kind) {
        *kind = {SANE_FRAME_GRAY, SANE_TRUE, 100, 100, -1, 8};
        return SANE_STATUS_GOOD;
    };
    sane_.Read = [](SANE_Handle, SANE_Byte*, SANE_Int most, SANE_Int* length) {
        *length = most;
        return SANE_STATUS_GOOD;
    };
    sane_.Cancel = [&](SANE_Handle) { isStopped = true; };
    int asked = 0;
    const Scanned scanned = Scan("", "Grey", [&](std::size_t) { return ++asked < 10; });
    EXPECT_TRUE(scanned.isCancelled && isStopped);
    EXPECT_EQ(In(folders_.ProcessIn), Names());
}

}  // namespace
}  // namespace tavrene::intake
