#include "forms/SampleSet.h"

#include <utility>

namespace tavrene::samples {

namespace {

using imaging::ImageFormat;

constexpr Tint kBlueInk{35, 55, 150};
constexpr Tint kRedInk{190, 25, 40};
constexpr Tint kCream{250, 244, 226};
constexpr Tint kRecycled{226, 224, 216};
constexpr const char* kPatient = "PatientQuestionnaire";
constexpr const char* kStaff = "StaffSurvey";

constexpr Pen kBallPen{3.2, kBlack, 0};
constexpr Pen kFeltPen{5.0, kBlack, 0};
constexpr Pen kDryPen{3.0, 40, 0.25};
constexpr Pen kPencil{3.4, 112, 0.2};

Respondent By(Habit habit, std::uint64_t seed, const Pen& pen = kBallPen, double carelessness = 0.05) {
    return {.Marks = habit, .Seed = seed, .Tool = pen, .Carelessness = carelessness};
}

ScanSettings At(double shiftX, double shiftY, double noise = 40) {
    return {.ShiftX = shiftX, .ShiftY = shiftY, .Noise = noise};
}

Look Grey(ImageFormat format, const Tint& paper) {
    return {.Bits = Depth::Grey, .Format = format, .Paper = paper};
}

Look Colour(ImageFormat format, const Tint& paper, const Tint& ink) {
    return {.Bits = Depth::Colour, .Format = format, .Paper = paper, .Ink = ink};
}

/// Answers that a person understands and a count of ink does not.
Respondent WhoCorrects() {
    Respondent who = By(Habit::Ticks, 112, kBallPen, 0.1);
    who.OddMarks = {{"Contact yes", {DrawTick, DrawScribble}, 0, false},
                    {"Contact no", {DrawTick}},
                    {"Treated diabetes", {DrawRing}},
                    {"Treated asthma", {DrawTick}, -1.4}};
    return who;
}

Respondent WhoIsSloppy() {
    Respondent who = By(Habit::Mixed, 111, kBallPen, 0.3);
    who.Slips = 0.15;
    return who;
}

/// In one bit a pixel; what is special follows.
Sample OneBit(const char* file, const char* form, Respondent who, const ScanSettings& scan) {
    return {.File = file, .Form = form, .Who = std::move(who), .Scan = scan};
}

Sample InBlackIsZero(Sample sample) {
    sample.Picture.Order = Photometric::MinIsBlack;
    return sample;
}

Sample WithSpecks(int specks, Sample sample) {
    sample.Scan.Specks = specks;
    return sample;
}

Sample AtResolution(int dpi, Sample sample) {
    sample.Scan.Dpi = dpi;
    return sample;
}

Sample Stretched(double byX, double byY, double skewDegrees, Sample sample) {
    sample.Scan.StretchX = byX;
    sample.Scan.StretchY = byY;
    sample.Scan.SkewDegrees = skewDegrees;
    return sample;
}

Sample Tilted(double degrees, Sample sample) {
    sample.Scan.SkewDegrees = degrees;
    return sample;
}

Sample Bent(double pixels, Sample sample) {
    sample.Scan.Bend = pixels;
    return sample;
}

Sample ThinnedOut(double share, Sample sample) {
    sample.Scan.Thin = share;
    return sample;
}

Sample As(Look look, Sample sample) {
    sample.Picture = look;
    return sample;
}

Sample With(const char* outcome, Sample sample) {
    sample.Outcome = outcome;
    return sample;
}

Sample Beyond(const char* reason, Sample sample) {
    sample.BeyondRules = reason;
    return sample;
}

std::vector<Sample> PatientSamples() {
    return {
        OneBit("patient-01.tif", kPatient, By(Habit::Ticks, 101), At(0, 0, 0)),
        InBlackIsZero(OneBit("patient-02-crosses.tif", kPatient, By(Habit::Crosses, 102), At(3, -2))),
        OneBit("patient-03-filled.tif", kPatient, By(Habit::Fillings, 103, kFeltPen), At(-4, 6)),
        OneBit("patient-04-unmarked.tif", kPatient, {}, At(2, 3)),
        OneBit("patient-05-shifted.tif", kPatient, By(Habit::Mixed, 105), At(24, 23)),
        Stretched(1.003, 0.997, 0.06,
                  OneBit("patient-06-stretched.tif", kPatient, By(Habit::Ticks, 106, kFeltPen), At(-5, 4))),
        AtResolution(300, InBlackIsZero(
                              OneBit("patient-07-300dpi.tif", kPatient, By(Habit::Crosses, 107), At(5, -6)))),
        WithSpecks(2500, OneBit("patient-08-speckled.tif", kPatient, By(Habit::Scribbles, 108), At(-7, 5))),
        As(Colour(ImageFormat::Jpeg, kCream, kBlueInk),
           OneBit("patient-09-blue-pen.jpg", kPatient, By(Habit::Ticks, 109), At(6, 8, 6))),
        As(Grey(ImageFormat::Png, kRecycled),
           OneBit("patient-10-pencil.png", kPatient, By(Habit::Crosses, 110, kPencil), At(-3, -8, 0))),
        OneBit("patient-11-sloppy.tif", kPatient, WhoIsSloppy(), At(8, -9)),
        Beyond("an answer scribbled out, marks outside their boxes",
               OneBit("patient-12-corrected.tif", kPatient, WhoCorrects(), At(1, 4))),
        Beyond("turned by 1.4 degrees: Precise Alignment reads it",
               Tilted(1.4, OneBit("patient-14-tilted.tif", kPatient, By(Habit::Crosses, 114), At(9, -6)))),
        Beyond("upside down: Precise Alignment reads it",
               Tilted(180.5, OneBit("patient-15-upside-down.tif", kPatient, By(Habit::Ticks, 115, kFeltPen),
                                    At(4, 7)))),
        With("unreadable", As({.KeptShare = 0.6},
                              OneBit("patient-13-cut-off.tif", kPatient, By(Habit::Ticks, 113), At(0, 0)))),
    };
}

std::vector<Sample> StaffSamples() {
    return {
        OneBit("staff-01.tif", kStaff, By(Habit::Mixed, 201), At(-2, 1)),
        As(Grey(ImageFormat::Png, {kWhite, kWhite, kWhite}),
           OneBit("staff-02-dots.png", kStaff, By(Habit::Dots, 202, kFeltPen), At(4, 4, 0))),
        As(Colour(ImageFormat::Png, kCream, kRedInk),
           OneBit("staff-03-red-pen.png", kStaff, By(Habit::Crosses, 203), At(-6, 9, 0))),
        InBlackIsZero(OneBit("staff-04-dry-pen.tif", kStaff, By(Habit::Ticks, 204, kDryPen), At(5, -3, 60))),
        OneBit("staff-05-shifted.tif", kStaff, By(Habit::Fillings, 205, kFeltPen, 0.1), At(-22, -24)),
        As(Grey(ImageFormat::Jpeg, kRecycled),
           OneBit("staff-06-grey.jpg", kStaff, By(Habit::Dashes, 206, kFeltPen), At(7, 2, 8))),
        As({.Format = ImageFormat::Gif},
           WithSpecks(400, OneBit("staff-07-fax.gif", kStaff, By(Habit::Crosses, 207, kFeltPen, 0.1),
                                  At(-9, -5, 60)))),
        Stretched(0.997, 1.003, -0.04,
                  OneBit("staff-08-stretched.tif", kStaff, By(Habit::Mixed, 208), At(6, 7))),
        Beyond("150 dpi: the outlines are shorter than those of the profile",
               AtResolution(150, OneBit("new-scanner-1-150dpi.tif", kStaff, By(Habit::Ticks, 209, kFeltPen),
                                        At(2, 2)))),
        With("unreadable", OneBit("new-scanner-2.tiff", kStaff, By(Habit::Ticks, 210), At(3, 3))),
        With("unreadable",
             As(Grey(ImageFormat::Tiff, kRecycled),
                OneBit("new-scanner-3-grey.tif", kStaff, By(Habit::Crosses, 211), At(2, -3, 0)))),
        Beyond("bent by 1.2 mm: Precise Alignment reads it",
               Bent(9.5, OneBit("staff-13-bent.tif", kStaff, By(Habit::Crosses, 213, kFeltPen), At(3, 2)))),
        ThinnedOut(0.45, Tilted(-0.5, OneBit("staff-14-thin.tif", kStaff, By(Habit::Fillings, 214, kFeltPen),
                                             At(-5, 3)))),
        As({.Format = ImageFormat::Bmp, .Order = Photometric::MinIsBlack},
           OneBit("staff-12 second copy.bmp", kStaff, By(Habit::Crosses, 212, kFeltPen), At(-4, 2))),
    };
}

std::vector<Sample> OtherSamples() {
    return {
        With("unclassified", OneBit("delivery-note.tif", "DeliveryNote", By(Habit::Ticks, 301), At(6, -4))),
        With("unclassified", WithSpecks(60, OneBit("blank-sheet.tif", "BlankSheet", {}, At(0, 0)))),
    };
}

}  // namespace

std::vector<Sample> AllSamples() {
    std::vector<Sample> samples = PatientSamples();
    for (const std::vector<Sample>& more : {StaffSamples(), OtherSamples()})
        samples.insert(samples.end(), more.begin(), more.end());
    return samples;
}

}  // namespace tavrene::samples
