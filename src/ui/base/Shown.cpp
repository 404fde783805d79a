#include "ui/base/Shown.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <optional>
#include <vector>

#include "ui/base/EngineTexts.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

constexpr const char* kPlace = "Engine";
// Of reasons within reasons within messages.
constexpr int kDeepest = 4;

// A text with places for what is put in, and what it is in the window's language.
struct Sentence {
    QRegularExpression pattern;
    QString longestWords;      ///< Looking for them is cheaper than trying the pattern.
    std::vector<int> numbers;  ///< Of the places, as they come in the English text.
    QString translated;
};

// Everything that has a translation, for one language.
struct Catalogue {
    QHash<QString, QString> whole;
    std::vector<Sentence> composed;

    bool IsEmpty() const { return whole.isEmpty() && composed.empty(); }
};

Sentence SentenceOf(const QString& english, const QString& translated) {
    static const QRegularExpression place("%(L?)([1-9])");
    Sentence sentence{{}, {}, {}, translated};
    QString pattern;
    qsizetype from = 0;
    const auto takeWords = [&](qsizetype to) {
        const QString words = english.mid(from, to - from);
        pattern += QRegularExpression::escape(words);
        if (words.size() > sentence.longestWords.size())
            sentence.longestWords = words;
    };
    // What is put into a text of one line has no other lines behind it.
    const char* const any = english.contains('\n') ? "(.+?)" : "([^\n]+?)";
    for (auto found = place.globalMatch(english); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        takeWords(match.capturedStart());
        pattern += match.captured(1).isEmpty() ? any : "(\\d+)";
        sentence.numbers.push_back(match.captured(2).toInt());
        from = match.capturedEnd();
    }
    takeWords(english.size());
    sentence.pattern = QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                                          QRegularExpression::DotMatchesEverythingOption);
    return sentence;
}

Catalogue MakeCatalogue() {
    Catalogue catalogue;
    for (const auto texts : {EngineTexts(), CommandTexts()})
        for (const char* const text : texts) {
            const QString english = text;
            const QString translated = Tr(kPlace, text);
            if (translated == english)
                continue;
            if (english.contains("%1") || english.contains("%L1"))
                catalogue.composed.push_back(SentenceOf(english, translated));
            else
                catalogue.whole.insert(english, translated);
        }
    return catalogue;
}

// The one text that every language translates by its code tells which one is spoken: translators are put in
// before there is a window, and tests change them.
const Catalogue& CatalogueNow() {
    static QString language;
    static Catalogue catalogue;
    const QString now = Tr("Language", "en");
    if (now != language) {
        language = now;
        catalogue = now == "en" ? Catalogue() : MakeCatalogue();
    }
    return catalogue;
}

class Translation {
  public:
    explicit Translation(const Catalogue& catalogue) : catalogue_(catalogue) {}

    QString Of(const QString& text, int depth = 0) const {
        if (const std::optional<QString> known = Known(text, depth))
            return *known;
        for (const QString& end : {QString("\n"), QString(" "), QString("; ")})
            if (const std::optional<QString> parts = InParts(text, end, depth))
                return *parts;
        return BehindName(text, depth);
    }

  private:
    std::optional<QString> Known(const QString& text, int depth) const {
        if (const auto whole = catalogue_.whole.constFind(text); whole != catalogue_.whole.constEnd())
            return *whole;
        for (const Sentence& sentence : catalogue_.composed) {
            if (!text.contains(sentence.longestWords))
                continue;
            if (const QRegularExpressionMatch match = sentence.pattern.match(text); match.hasMatch())
                return Filled(sentence, match, depth);
        }
        return std::nullopt;
    }

    // What is put in may be a reason, with a text of its own.
    QString Filled(const Sentence& sentence, const QRegularExpressionMatch& match, int depth) const {
        static const QRegularExpression place("%L?([1-9])");
        QString filled;
        qsizetype from = 0;
        for (auto found = place.globalMatch(sentence.translated); found.hasNext();) {
            const QRegularExpressionMatch here = found.next();
            const auto number = std::ranges::find(sentence.numbers, here.captured(1).toInt());
            const QString put = match.captured(static_cast<int>(number - sentence.numbers.begin()) + 1);
            filled += sentence.translated.mid(from, here.capturedStart() - from);
            filled += put.contains(' ') && depth < kDeepest ? Of(put, depth + 1) : put;
            from = here.capturedEnd();
        }
        return filled + sentence.translated.mid(from);
    }

    // The beginning that is known, and what comes behind it.
    std::optional<QString> InParts(const QString& text, const QString& end, int depth) const {
        if (depth >= kDeepest)
            return std::nullopt;
        const bool isSentence = end == " ";
        for (qsizetype at = text.indexOf(end); at >= 0; at = text.indexOf(end, at + 1)) {
            if (isSentence && (at == 0 || !QString(".:!?").contains(text[at - 1])))
                continue;
            if (const std::optional<QString> head = Known(text.left(at), depth))
                return *head + end + Of(text.mid(at + end.size()), depth);
        }
        // A line that nobody knows, or an empty one, leaves those below to be looked up.
        if (const qsizetype at = text.indexOf(end); end == "\n" && at >= 0)
            return Of(text.left(at), depth + 1) + end + Of(text.mid(at + 1), depth);
        return std::nullopt;
    }

    // What is said of a file, behind its name, which can hold any text itself.
    QString BehindName(const QString& text, int depth) const {
        for (qsizetype at = text.indexOf(": "); at >= 0; at = text.indexOf(": ", at + 1))
            if (const std::optional<QString> said = Known(text.mid(at + 2), depth))
                return text.left(at + 2) + *said;
        return text;
    }

    const Catalogue& catalogue_;
};

}  // namespace

QString Shown(std::string_view english) {
    const Catalogue& catalogue = CatalogueNow();
    const QString text = ToQt(english);
    return catalogue.IsEmpty() || text.isEmpty() ? text : Translation(catalogue).Of(text);
}

}  // namespace tavrene::ui
