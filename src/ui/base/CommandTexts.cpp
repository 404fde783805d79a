#include <QtGlobal>

#include "ui/base/EngineTexts.h"

namespace tavrene::ui {
namespace {

// clang-format off
constexpr const char* kTexts[] = {
    // how a run goes and went
    QT_TRANSLATE_NOOP("Engine", "%L1 of %L2, %L3 s left"),
    QT_TRANSLATE_NOOP("Engine", "%L1 of %L2, %L3 min left"),
    QT_TRANSLATE_NOOP("Engine", "%L1 of %L2"),
    QT_TRANSLATE_NOOP("Engine", "Last run:"),
    QT_TRANSLATE_NOOP("Engine", "1 file"),
    QT_TRANSLATE_NOOP("Engine", "%L1 files"),
    QT_TRANSLATE_NOOP("Engine", "%L1 read"),
    QT_TRANSLATE_NOOP("Engine", "%L1 not recognised"),
    QT_TRANSLATE_NOOP("Engine", "%L1 refused"),
    QT_TRANSLATE_NOOP("Engine", "%L1 not written"),
    QT_TRANSLATE_NOOP("Engine", "1 second"),
    QT_TRANSLATE_NOOP("Engine", "%L1 seconds"),
    QT_TRANSLATE_NOOP("Engine", "1 further page was not looked at:"),
    QT_TRANSLATE_NOOP("Engine", "%1 further pages were not looked at:"),
    QT_TRANSLATE_NOOP("Engine", "1 scan waits in ProcessIn/.claims"),
    QT_TRANSLATE_NOOP("Engine", "%1 scans wait in ProcessIn/.claims"),
    QT_TRANSLATE_NOOP("Engine", "bring in to ProcessIn"),
    QT_TRANSLATE_NOOP("Engine", "Read These Again"),
    QT_TRANSLATE_NOOP("Engine", "Reading forms again... Esc stops."),
    QT_TRANSLATE_NOOP("Engine", "1 form is left."),
    QT_TRANSLATE_NOOP("Engine", "%L1 forms are left."),
    QT_TRANSLATE_NOOP("Engine", "1 form was read by Precise Alignment and can be reviewed."),
    QT_TRANSLATE_NOOP("Engine", "%1 forms were read by Precise Alignment and can be reviewed."),
    QT_TRANSLATE_NOOP("Engine", "%1 forms were read by Precise Alignment."),

    // boxes that may be more
    QT_TRANSLATE_NOOP("Engine", "Find More Boxes"),
    QT_TRANSLATE_NOOP("Engine", "Looking for more boxes... Esc stops."),
    QT_TRANSLATE_NOOP("Engine", "Looking for more boxes was stopped."),
    QT_TRANSLATE_NOOP("Engine", "No more boxes were found."),
    QT_TRANSLATE_NOOP("Engine", "The specimen image cannot be read as an image."),
    QT_TRANSLATE_NOOP("Engine", "1 box found."),
    QT_TRANSLATE_NOOP("Engine", "%L1 boxes found."),
    QT_TRANSLATE_NOOP("Engine", "1 box of about %L1 x %L2 px: larger than the settings allow."),
    QT_TRANSLATE_NOOP("Engine", "%L1 boxes of about %L2 x %L3 px: larger than the settings allow."),
    QT_TRANSLATE_NOOP("Engine", "1 box of about %L1 x %L2 px: smaller than the settings allow."),
    QT_TRANSLATE_NOOP("Engine", "%L1 boxes of about %L2 x %L3 px: smaller than the settings allow."),
    QT_TRANSLATE_NOOP("Engine", "1 more may be a box: look at it with Find More Boxes (Ctrl+M)."),
    QT_TRANSLATE_NOOP("Engine", "%1 more may be boxes: look at them with Find More Boxes (Ctrl+M)."),
    QT_TRANSLATE_NOOP("Engine", "1 more may be a box."),
    QT_TRANSLATE_NOOP("Engine", "%L1 more may be boxes."),
    QT_TRANSLATE_NOOP("Engine", "Enter takes one, Ctrl+A all, Esc closes."),
    QT_TRANSLATE_NOOP("Engine", "Esc closes."),
    QT_TRANSLATE_NOOP("Engine", "%L1 x %L2 at %L3, %L4 (print?)"),
    QT_TRANSLATE_NOOP("Engine", "%L1 x %L2 at %L3, %L4"),
    QT_TRANSLATE_NOOP("Engine", "1 box added."),
    QT_TRANSLATE_NOOP("Engine", "%L1 boxes added."),
    QT_TRANSLATE_NOOP("Engine", "Draw the first box at the upper left, then draw or click the last at the lower right."),
    QT_TRANSLATE_NOOP("Engine", "All boxes of this grid are there already."),
    QT_TRANSLATE_NOOP("Engine", "1 box copied; Ctrl+V adds it to a profile."),
    QT_TRANSLATE_NOOP("Engine", "%L1 boxes copied; Ctrl+V adds them to a profile."),
    QT_TRANSLATE_NOOP("Engine", "There is no room on the page for the copies there."),

    // bringing in
    QT_TRANSLATE_NOOP("Engine", "%1 of %2 scans have names of scans that wait in ProcessIn.\nYes puts the new ones in their place, No gives the new ones other names."),
    QT_TRANSLATE_NOOP("Engine", "1 scan was copied to ProcessIn."),
    QT_TRANSLATE_NOOP("Engine", "%1 scans were copied to ProcessIn."),
    QT_TRANSLATE_NOOP("Engine", "1 has a new name."),
    QT_TRANSLATE_NOOP("Engine", "%L1 have a new name."),
    QT_TRANSLATE_NOOP("Engine", "1 other file was left out: no image."),
    QT_TRANSLATE_NOOP("Engine", "%1 other files were left out: no image."),
    QT_TRANSLATE_NOOP("Engine", "1 is in ProcessIn already."),
    QT_TRANSLATE_NOOP("Engine", "%L1 are in ProcessIn already."),
    QT_TRANSLATE_NOOP("Engine", "1 page of 1 file was brought in to ProcessIn."),
    QT_TRANSLATE_NOOP("Engine", "%1 pages of 1 file were brought in to ProcessIn."),
    QT_TRANSLATE_NOOP("Engine", "%1 pages of %2 files were brought in to ProcessIn."),
    QT_TRANSLATE_NOOP("Engine", "The rest was cancelled."),
    QT_TRANSLATE_NOOP("Engine", "The clipboard holds no files. Copy scans or folders in a file manager first."),
    QT_TRANSLATE_NOOP("Engine", "The clipboard holds boxes. Open a profile to add them to it."),
    QT_TRANSLATE_NOOP("Engine",
                      "These boxes were copied before the program was started. Copy them once more."),
    QT_TRANSLATE_NOOP("Engine", "1 page was scanned to ProcessIn."),
    QT_TRANSLATE_NOOP("Engine", "%L1 pages were scanned to ProcessIn."),

    // doubts
    QT_TRANSLATE_NOOP("Engine", "Looking for the next doubt..."),
    QT_TRANSLATE_NOOP("Engine", "Looking at forms that were not looked at yet..."),
    QT_TRANSLATE_NOOP("Engine", "Accepting forms..."),
    QT_TRANSLATE_NOOP("Engine", "Bringing forms back..."),
    QT_TRANSLATE_NOOP("Engine", "Esc stops."),
    QT_TRANSLATE_NOOP("Engine", "Accepted 1 form."),
    QT_TRANSLATE_NOOP("Engine", "Accepted %L1 forms."),
    QT_TRANSLATE_NOOP("Engine", "Undo Decision (Ctrl+U) brings them back."),
    QT_TRANSLATE_NOOP("Engine", "1 form still to be looked at"),
    QT_TRANSLATE_NOOP("Engine", "%L1 forms still to be looked at"),
    QT_TRANSLATE_NOOP("Engine", "1 mark was turned round and not confirmed. Go on without them?"),
    QT_TRANSLATE_NOOP("Engine", "%L1 marks were turned round and not confirmed. Go on without them?"),
    QT_TRANSLATE_NOOP("Engine", "1 form reviewed, 1 box corrected on the sheet."),
    QT_TRANSLATE_NOOP("Engine", "1 form reviewed, %L1 boxes corrected on the sheet."),
    QT_TRANSLATE_NOOP("Engine", "%L1 forms reviewed, 1 box corrected on the sheet."),
    QT_TRANSLATE_NOOP("Engine", "%L1 forms reviewed, %L2 boxes corrected on the sheet."),

    // export
    QT_TRANSLATE_NOOP("Engine", "Export Results"),
    QT_TRANSLATE_NOOP("Engine", "Export Results Into"),
    QT_TRANSLATE_NOOP("Engine", "Workbooks"),
    QT_TRANSLATE_NOOP("Engine", "Folders"),
    QT_TRANSLATE_NOOP("Engine", "Save Counts"),
    QT_TRANSLATE_NOOP("Engine", "PDF documents"),
    QT_TRANSLATE_NOOP("Engine", "PNG pictures"),
    QT_TRANSLATE_NOOP("Engine", "Reading the result documents"),
    QT_TRANSLATE_NOOP("Engine", "Writing the tables"),
    QT_TRANSLATE_NOOP("Engine", "There are no forms to export in %1"),
    QT_TRANSLATE_NOOP("Engine", "1 document could not be read and is in no table: %1."),
    QT_TRANSLATE_NOOP("Engine", "%1 documents could not be read and are in no table: %2; and %3 more."),
    QT_TRANSLATE_NOOP("Engine", "%1 documents could not be read and are in no table: %2."),
    QT_TRANSLATE_NOOP("Engine", "1 file of the tables' names is in %1 already. Replace it?"),
    QT_TRANSLATE_NOOP("Engine", "%1 files of the tables' names are in %2 already. Replace them?"),
    QT_TRANSLATE_NOOP("Engine", "1 form of 1 profile exported to %1"),
    QT_TRANSLATE_NOOP("Engine", "%1 forms of 1 profile exported to %2"),
    QT_TRANSLATE_NOOP("Engine", "%1 forms of %2 profiles exported to %3"),

    // settings, log, desktop
    QT_TRANSLATE_NOOP("Engine", "Ready"),
    QT_TRANSLATE_NOOP("Engine", "The box sizes take full effect, and the working folder is used, at the next start."),
    QT_TRANSLATE_NOOP("Engine", "The new box sizes take full effect at the next start."),
    QT_TRANSLATE_NOOP("Engine", "The new working folder is used at the next start."),
    QT_TRANSLATE_NOOP("Engine", "The language is used at the next start."),
    QT_TRANSLATE_NOOP("Engine", "The log in the working folder could not be written."),
    QT_TRANSLATE_NOOP("Engine", "This desktop has no program that opens %1"),
};
// clang-format on

}  // namespace

std::span<const char* const> CommandTexts() {
    return kTexts;
}

}  // namespace tavrene::ui
