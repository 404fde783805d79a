#include "forms/SampleSet.h"

namespace tavrene::samples {

imaging::Bitmap PaintSample(const Sample& sample, const PrintedForm& form, const Filling& filling) {
    const Canvas print = TakeScan(form.Page, sample.Scan);
    const Canvas pen = TakeScan(filling.Page, sample.Scan);
    const auto channel = [&](Shade paper, Shade ink) {
        Canvas scan = Develop(print, pen, paper, ink);
        Random random(sample.Who.Seed);
        AddNoise(scan, random, sample.Scan.Noise);
        DrawSpecks(scan, random, sample.Scan.Specks, 1.6);
        if (sample.Scan.Thin > 0)
            ThinOut(scan, random, sample.Scan.Thin);
        return scan;
    };
    const Look& look = sample.Picture;
    if (look.Bits == Depth::Colour)
        return ToColour(channel(look.Paper.Red, look.Ink.Red), channel(look.Paper.Green, look.Ink.Green),
                        channel(look.Paper.Blue, look.Ink.Blue));
    const Canvas grey = channel(look.Paper.Green, look.Ink.Green);
    return look.Bits == Depth::Grey ? ToGrey(grey) : ToBilevel(grey, look.Order);
}

}  // namespace tavrene::samples
