#include <QImage>
#include <QRadioButton>
#include <QTextBrowser>
#include <filesystem>

#include "recognition/ResultDocument.h"
#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;
using test::ReadText;
using Box = QMessageBox;

class ExportWindow : public test::DeskWindow {
  protected:
    void PutForm(const std::string& name, bool checked) {
        recognition::SaveResultDocument(files_, folders_.ProcessOut + name + ".xml",
                                        {"Survey", name + ".tif", "0", 97},
                                        {{{"Yes", {}, {}, 0, checked}, {"No", {}, {}, 0, false}}});
    }

    void Export() { Press(*window_, Qt::Key_E, Qt::ControlModifier); }

    // Presses a button of the dialog, with an option chosen before.
    static std::function<void(QDialog&)> Choose(const char* option, const char* button) {
        return [option, button](QDialog& dialog) {
            if (option != nullptr)
                Find<QRadioButton>(dialog, option).click();
            QTimer::singleShot(0, &dialog, [&dialog, button] { Find<QPushButton>(dialog, button).click(); });
        };
    }

    test::TempFolder out_;
};

TEST_F(ExportWindow, FormsBecomeTablesWhereThePersonWantsThem) {
    PutForm("a", true);
    PutForm("b", false);
    test::WriteText(folders_.ProcessOut + "torn.xml", "<Form>");
    Open();
    {
        DialogScript dialogs;
        dialogs.Do(Choose("optCsv", "cmdExport")).Type(out_.Path());
        Export();
    }
    EXPECT_EQ(Panel("Message"), "2 forms of 1 profile exported to " + out_.Path() + "/");
    EXPECT_NE(Notices().find("1 document could not be read and is in no table: torn.xml"), std::string::npos);
    const std::string table = ReadText(out_.File("Survey.csv"));
    EXPECT_NE(table.find("a.tif,Survey,0,97,"), std::string::npos) << table;
    EXPECT_EQ(In(out_.Path()), (std::vector<std::string>{"Summary.csv", "Survey.csv"}));

    // The choice is remembered, and what is there is replaced only when the person says so.
    PutForm("c", true);
    {
        DialogScript dialogs;
        dialogs.Do(Choose(nullptr, "cmdExport")).Type(out_.Path()).PressEnter();
        Export();
        EXPECT_EQ(dialogs.shown.back(),
                  "2 files of the tables' names are in " + out_.Path() + "/ already. Replace them?");
    }
    EXPECT_EQ(ReadText(out_.File("Survey.csv")), table);
    {
        DialogScript dialogs;
        dialogs.Do(Choose("optWorkbook", "cmdExport")).Type(out_.File("book"));
        Export();
    }
    EXPECT_EQ(ReadText(out_.File("book.xlsx")).substr(0, 2), "PK");
    {
        DialogScript dialogs;
        dialogs.Do(Choose("optAccepted", "cmdExport")).Press(Box::Ok);
        Export();
        EXPECT_EQ(dialogs.shown.back(), "There are no forms to export in " + folders_.ProcessFinal);
    }
}

TEST_F(ExportWindow, CountsAreAPageToReadAndToSave) {
    PutForm("a", true);
    PutForm("b", false);
    Open();
    DialogScript dialogs;
    const auto save = [](const char* button) {
        return [button](QDialog& dialog) {
            EXPECT_NE(Find<QTextBrowser>(dialog, "CountsPage").toPlainText().indexOf("50 %"), -1);
            QTimer::singleShot(0, &dialog, [&dialog, button] { Find<QPushButton>(dialog, button).click(); });
        };
    };
    dialogs.Do(Choose(nullptr, "cmdCounts")).Do(save("cmdSavePdf")).Type(out_.File("counts.pdf"));
    dialogs.Do(save("cmdSavePng")).Type(out_.File("counts.png")).Cancel();
    Export();
    EXPECT_EQ(ReadText(out_.File("counts.pdf")).substr(0, 5), "%PDF-");
    const QImage picture(ToQt(out_.File("counts.png")));
    EXPECT_EQ(picture.width(), 1240);
    EXPECT_GT(picture.height(), 200);
}

}  // namespace
}  // namespace tavrene::ui
