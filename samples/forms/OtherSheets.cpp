#include <array>
#include <string>

#include "forms/Forms.h"

namespace tavrene::samples {

PrintedForm DeliveryNote() {
    constexpr std::array<std::array<const char*, 3>, 9> goods = {{{"4", "A4 paper, 80 g, white", "box of 5"},
                                                                  {"2", "Ball pens, blue", "pack of 50"},
                                                                  {"1", "Stapler, 40 sheets", "piece"},
                                                                  {"10", "Lever arch file, 80 mm", "piece"},
                                                                  {"6", "Adhesive tape, 19 mm", "roll"},
                                                                  {"3", "Envelopes C4", "box of 250"},
                                                                  {"1", "Desk lamp", "piece"},
                                                                  {"12", "Note pads, ruled", "piece"},
                                                                  {"2", "Toner, black", "piece"}}};
    FormSheet sheet("DeliveryNote");
    sheet.Head("Office Supplies", "Delivery Note", "No. 20417", "Please check the goods and sign below.");
    int y = 420;
    sheet.BoldText(150, y, 9, "Number");
    sheet.BoldText(350, y, 9, "Article");
    sheet.BoldText(1100, y, 9, "Unit");
    sheet.Rule(130, y + 16, 1394, 3);
    for (const auto& article : goods) {
        y += 70;
        sheet.Text(170, y, 9, article[0]);
        sheet.Text(350, y, 9, article[1]);
        sheet.Text(1100, y, 9, article[2]);
        sheet.Rule(130, y + 22, 1394);
    }
    sheet.Question(true);
    sheet.LabelledBox(150, 1190, "Goods complete", "goods complete");
    sheet.LabelledBox(620, 1190, "Goods missing", "goods missing");
    sheet.LabelledBox(1090, 1190, "Goods damaged", "goods damaged");
    sheet.Field(130, 1390, 760, "Date");
    sheet.Field(820, 1390, 1524, "Signature");
    return sheet.Take();
}

PrintedForm BlankSheet() {
    return FormSheet("BlankSheet").Take();
}

}  // namespace tavrene::samples
