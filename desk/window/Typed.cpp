#include "desk/window/Typed.h"

#include <algorithm>
#include <map>

#include "desk/reading/Understand.h"
#include "desk/window/Ask.h"
#include "desk/window/FieldNames.h"

namespace Desk {

namespace {

using TypedTexts = std::vector<std::pair<FieldRef, QString>>;

constexpr std::size_t MostOffers = 3;  // as many buttons as a person reads at a glance

QString Worded(const char* text) { return QCoreApplication::translate("Desk", text); }

TypedTexts InWindow(const std::vector<TextFor>& texts)
{
    TypedTexts made;
    for (const TextFor& each : texts) {
        made.emplace_back(each.at, QString::fromStdString(each.text));
    }
    return made;
}

// "Bottom bars: 2B25", and what is there now.
QString OfferOf(const Project& project, const TextFor& offer)
{
    const QString field = FieldName(project, offer.at) + QStringLiteral(": ");
    const QString now = QString::fromStdString(TextAt(project, offer.at));
    const QString text = QString::fromStdString(offer.text);
    return field + (now.isEmpty() ? text : Worded(QT_TRANSLATE_NOOP("Desk", "%1 (now %2)")).arg(text, now));
}

}  // namespace

std::optional<TypedTexts> AskTyped(const Project& project, const FieldRef& at, const QString& text,
                                   QWidget* over)
{
    const QString trimmed = text.trimmed();
    const Understood read = Understand(project, at, trimmed.toStdString());
    if (read.fits) {
        return TypedTexts{{at, text}};
    }
    if (read.isSplit) {
        return InWindow(read.parts);
    }
    const std::size_t offers = std::min(read.instead.size(), MostOffers);
    QList<Answer> answers;
    QString why;
    if (!read.parts.empty()) {
        QStringList parts;
        for (const TextFor& each : read.parts) {
            parts << OfferOf(project, each);
        }
        why = Worded(QT_TRANSLATE_NOOP("Desk", "It is several annotations:\n%1")).arg(parts.join('\n'));
        answers << Answer{Worded(QT_TRANSLATE_NOOP("Desk", "Split")), QMessageBox::AcceptRole};
    } else if (offers > 0) {
        why = Worded(QT_TRANSLATE_NOOP("Desk", "It fits here:"));
        for (std::size_t i = 0; i < offers; ++i) {
            why += QLatin1Char('\n') + OfferOf(project, read.instead[i]);
            const bool isHere = read.instead[i].at == at;
            answers << Answer{isHere ? QString::fromStdString(read.instead[i].text)
                                     : FieldName(project, read.instead[i].at),
                              QMessageBox::AcceptRole};
        }
    } else {
        why = Worded(QT_TRANSLATE_NOOP(
            "Desk", "It is no annotation that can be read. Kept as it is it counts as a problem, and "
                    "proposals do not go by it."));
    }
    answers << Answer{Worded(QT_TRANSLATE_NOOP("Desk", "Keep it")), QMessageBox::DestructiveRole}
            << Answer{Worded(QT_TRANSLATE_NOOP("Desk", "Cancel")), QMessageBox::RejectRole};
    const QString what = Worded(QT_TRANSLATE_NOOP("Desk", "%1, %2: \"%3\" does not belong there."))
                             .arg(OwnerName(project, at), FieldName(project, at), trimmed);
    const int answer = Ask(over, "typed-question", QMessageBox::Question, what, why, answers);
    if (answer < 0 || answer == answers.size() - 1) {
        return std::nullopt;
    }
    if (answer == answers.size() - 2) {
        return TypedTexts{{at, text}};
    }
    return InWindow(!read.parts.empty() ? read.parts
                                        : std::vector{read.instead[static_cast<std::size_t>(answer)]});
}

std::optional<TypedTexts> AskGiven(const Project& project, const TypedTexts& texts, QWidget* over)
{
    constexpr qsizetype MostLines = 8;
    if (texts.size() == 1) {
        return AskTyped(project, texts.front().first, texts.front().second, over);
    }
    std::map<std::pair<Field, QString>, bool> known;  // the same text goes to many
    TypedTexts fitting;
    QStringList others;
    for (const auto& [at, text] : texts) {
        const auto [fits, isNew] = known.try_emplace({at.field, text});
        if (isNew) {
            fits->second = Understand(project, at, text.trimmed().toStdString()).fits;
        }
        if (fits->second) {
            fitting.emplace_back(at, text);
        } else {
            others
                << QStringLiteral("%1, %2: %3").arg(OwnerName(project, at), FieldName(project, at), text);
        }
    }
    if (others.isEmpty()) {
        return texts;
    }
    const QString what =
        Worded(QT_TRANSLATE_NOOP("Desk", "%1 of %2 texts do not belong where they would go."))
            .arg(others.size())
            .arg(texts.size());
    if (others.size() > MostLines) {
        others = others.mid(0, MostLines) << QStringLiteral("...");
    }
    enum { Keep, LeaveOut };
    switch (Ask(over, "typed-question", QMessageBox::Question, what, others.join('\n'),
                {{Worded(QT_TRANSLATE_NOOP("Desk", "Keep them")), QMessageBox::DestructiveRole},
                 {Worded(QT_TRANSLATE_NOOP("Desk", "Leave them out")), QMessageBox::AcceptRole},
                 {Worded(QT_TRANSLATE_NOOP("Desk", "Cancel")), QMessageBox::RejectRole}})) {
    case Keep: return texts;
    case LeaveOut: return fitting.empty() ? std::nullopt : std::optional(fitting);
    default: return std::nullopt;
    }
}

}  // namespace Desk
