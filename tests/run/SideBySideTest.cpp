#include <filesystem>
#include <map>
#include <new>

#include "recognition/ReadAhead.h"
#include "support/Kill.h"
#include "support/RunWorld.h"

namespace tavrene {
namespace {

using test::ReadText;
using test::TestForm;
using test::WriteText;
using Content = std::map<std::string, std::string>;

// A folder with every kind of file, processed over and over by so many jobs.
class SideBySideTest : public test::RunWorld {
  protected:
    void SetUp() override {
        AddSpecimenProfile("Form", form_);
        AddSpecimenProfile("Other", TestForm::Grid(2, 5, 30));
        WriteText(folders_.Profiles + "Column.Tvp", TestForm::Grid(1, 9, 28).ProfileText("Column"));
        for (int k = 1; k <= 9; ++k)
            form_.SaveScan(Waiting("form" + std::to_string(k) + ".tif"),
                           {.checked = {k, 13 - k}, .dx = k, .dy = 3 - k, .upsideDown = k == 5});
        TestForm::Grid(1, 9, 28).SaveScan(Waiting("column.tif"), {});
        TestForm::Grid(2, 5, 30).SaveScan(Waiting("other.tif"), {.checked = {1}});
        form_.SaveScan(Waiting("FORM2.TIF"), {.checked = {12}});
        WriteText(Waiting("damaged.tif"), "II*");
        WriteText(Waiting("letter.txt"), "no image");
    }

    void TearDown() override { files_.refuse = nullptr; }

    std::string Waiting(const std::string& name) const { return waiting_.File(name); }

    void Arrange() {
        files_.refuse = nullptr;
        for (const std::string& folder :
             {folders_.ProcessIn, folders_.ProcessOut, folders_.Log, folders_.Temp})
            for (const auto& entry : std::filesystem::directory_iterator(folder))
                std::filesystem::remove_all(entry);
        std::filesystem::copy(waiting_.Path(), app::ToPath(folders_.ProcessIn));
    }

    // A program that is started anew.
    void Start(int jobs, bool isStopped = false) {
        recognition::ProcessRun run({.files = files_,
                                     .log = log_,
                                     .person = person_,
                                     .clock = clock_,
                                     .page = screen_,
                                     .rows = screen_,
                                     .precise = &reader_,
                                     .jobs = [jobs] { return jobs; }},
                                    settings_, folders_);
        profiles_ = profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
        int left = isStopped ? 3 : -1;
        person_.onPendingEvents = [&] {
            if (--left == 0)
                run.Stop();
        };
        transcript_.Clear();
        run.Run(profiles_);
    }

    Content Folders() const {
        Content content;
        for (const std::string& folder : {folders_.ProcessIn, folders_.ProcessOut, folders_.Log})
            for (const auto& entry : std::filesystem::directory_iterator(folder))
                content[app::FromPath(entry.path())] = ReadText(app::FromPath(entry.path()));
        return content;
    }

    test::TempFolder waiting_;
    TestForm form_ = TestForm::Grid(3, 4);
};

TEST_F(SideBySideTest, TheOutcomeAndAllThatIsToldAreThoseOfOneJob) {
    struct Case {
        bool display;
        recognition::ReadingOptions reading;
        bool isStopped;
    };
    for (const auto& [display, reading, isStopped] :
         {Case{true, {false, true}, false}, Case{false, {true, false}, false}, Case{true, {}, true}}) {
        SCOPED_TRACE(display ? "shown" : "precise");
        settings_.DisplayDuringProcess = display;
        reading_ = reading;
        Arrange();
        Start(1, isStopped);
        const Content folders = Folders();
        const std::vector<std::string> told = transcript_.Lines();
        EXPECT_EQ(files_.List(folders_.ProcessIn, "*").size(), isStopped ? 11U : 0U);
        for (const int jobs : {2, 5}) {
            Arrange();
            Start(jobs, isStopped);
            EXPECT_EQ(Folders(), folders);
            EXPECT_EQ(transcript_.Lines(), told);
        }
    }
}

TEST_F(SideBySideTest, KilledAndStartedAgainTheOutcomeIsThatOfOneJob) {
    for (const char* const name : {"form4", "form6", "form7", "form8", "form9", "other"})
        std::filesystem::remove(Waiting(name + std::string(".tif")));
    int kill = 0;
    bool isKilled = true;
    // The steps of a file are fewer, so that the moments fall on different ones.
    for (; isKilled; kill += 11) {
        SCOPED_TRACE(kill);
        Content one;
        for (const int jobs : {1, 3}) {
            Arrange();
            isKilled = test::DiesBefore(files_, kill, [&] { Start(jobs); });
            Start(jobs);
            EXPECT_EQ(files_.List(folders_.ProcessIn, "*"), std::vector<std::string>());
            if (jobs == 1)
                one = Folders();
        }
        EXPECT_EQ(Folders(), one);
    }
    EXPECT_GT(kill, 55);
}

TEST(ReadAheadTest, AFormThatThereIsNoMemoryForFailsAlone) {
    for (const int jobs : {1, 3}) {
        recognition::ReadAhead forms(1, 6, jobs, [](std::size_t index) {
            if (index == 3)
                throw std::bad_alloc();
            recognition::FormReading reading;
            reading.winner = static_cast<int>(index);
            return reading;
        });
        for (int index = 1; index < 6; ++index) {
            const recognition::FormReading form = forms.Take();
            EXPECT_EQ(form.winner, index == 3 ? -1 : index);
            EXPECT_EQ(form.failure, index == 3 ? "there is not enough memory for it" : "");
        }
    }
}

}  // namespace
}  // namespace tavrene
