#include "desk/window/ReplaceDialog.h"

#include <set>

#include "desk/window/FieldNames.h"

namespace Desk {

namespace {

QString Caption(const char* text) { return QCoreApplication::translate("Desk", text); }

QString LettersIn(const std::string& name)
{
    return QString::fromStdString(name.substr(0, name.find_first_of("0123456789")));
}

// Whether a number goes on over a border in a text.
bool IsInNumber(const QString& text, qsizetype border)
{
    return border > 0 && border < text.size() && text[border - 1].isDigit() && text[border].isDigit();
}

QString Replaced(const QString& text, const Sought& sought)
{
    QString now;
    qsizetype done = 0;
    for (qsizetype at = text.indexOf(sought.what); at >= 0; at = text.indexOf(sought.what, at)) {
        const qsizetype end = at + sought.what.size();
        if (IsInNumber(text, at) || IsInNumber(text, end)) {
            ++at;
            continue;
        }
        now += text.mid(done, at - done) + sought.by;
        at = done = end;
    }
    return now + text.mid(done);
}

// What a person fills in, and the hits below it.
class ReplaceDialog : public QDialog {
public:
    ReplaceDialog(QWidget& over, const Project& project, const std::optional<FieldRef>& from)
        : QDialog(&over), m_project(project), m_what(new QLineEdit), m_by(new QLineEdit),
          m_field(new QComboBox), m_type(new QComboBox), m_rows(new QTreeWidget), m_count(new QLabel)
    {
        setObjectName("replace");
        setWindowTitle(Caption(QT_TRANSLATE_NOOP("Desk", "Find and replace")));
        m_what->setObjectName("what");
        m_by->setObjectName("by");
        m_field->setObjectName("field");
        m_type->setObjectName("type");
        m_rows->setObjectName("hits");
        FillChoices(from);
        m_rows->setAccessibleName(Caption(QT_TRANSLATE_NOOP("Desk", "Hits")));
        m_rows->setColumnCount(4);
        m_rows->setRootIsDecorated(false);
        m_rows->setUniformRowHeights(true);
        m_rows->setHeaderLabels({Caption(QT_TRANSLATE_NOOP("Desk", "Beam or wall")),
                                 Caption(QT_TRANSLATE_NOOP("Desk", "Annotation")),
                                 Caption(QT_TRANSLATE_NOOP("Desk", "Now")),
                                 Caption(QT_TRANSLATE_NOOP("Desk", "Becomes"))});
        m_rows->headerItem()->setToolTip(
            0, Caption(QT_TRANSLATE_NOOP("Desk", "What stays ticked is replaced")));
        auto& rows = *new QFormLayout(this);
        rows.addRow(Caption(QT_TRANSLATE_NOOP("Desk", "Find")), m_what);
        rows.addRow(Caption(QT_TRANSLATE_NOOP("Desk", "Replace by")), m_by);
        rows.addRow(Caption(QT_TRANSLATE_NOOP("Desk", "In annotations")), m_field);
        rows.addRow(Caption(QT_TRANSLATE_NOOP("Desk", "Of")), m_type);
        rows.addRow(m_rows);
        rows.addRow(m_count);
        auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        m_do = buttons->button(QDialogButtonBox::Ok);
        m_do->setText(Caption(QT_TRANSLATE_NOOP("Desk", "&Replace")));
        rows.addRow(buttons);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        connect(m_what, &QLineEdit::textChanged, this, &ReplaceDialog::Seek);
        connect(m_by, &QLineEdit::textChanged, this, &ReplaceDialog::Seek);
        connect(m_field, &QComboBox::currentIndexChanged, this, &ReplaceDialog::Seek);
        connect(m_type, &QComboBox::currentIndexChanged, this, &ReplaceDialog::Seek);
        connect(m_rows, &QTreeWidget::itemChanged, this, &ReplaceDialog::Count);
        resize(640, 520);
        Seek();
    }

    [[nodiscard]] NewTexts Ticked() const
    {
        NewTexts texts;
        for (int row = 0; row < m_rows->topLevelItemCount(); ++row) {
            if (m_rows->topLevelItem(row)->checkState(0) == Qt::Checked) {
                const Hit& hit = m_hits[static_cast<std::size_t>(row)];
                texts.emplace_back(hit.ref, hit.after);
            }
        }
        return texts;
    }

private:
    void FillChoices(const std::optional<FieldRef>& from)
    {
        m_field->addItem(Caption(QT_TRANSLATE_NOOP("Desk", "all")), -1);
        for (const std::span<const Field> fields : {BeamFields(), WallFields().subspan(1)}) {  // but Name
            for (const Field field : fields) {
                m_field->addItem(FieldName(field), static_cast<int>(field));
            }
        }
        std::set<QString> types;
        for (const Beam& beam : m_project.beams) {
            types.insert(LettersIn(beam.name));
        }
        types.erase(QString());
        m_type->addItem(Caption(QT_TRANSLATE_NOOP("Desk", "all beams and walls")), QString());
        for (const QString& type : types) {
            m_type->addItem(Caption(QT_TRANSLATE_NOOP("Desk", "beams %1")).arg(type), type);
        }
        if (from) {
            m_what->setText(QString::fromStdString(TextAt(m_project, *from)));
            m_field->setCurrentIndex(m_field->findData(static_cast<int>(from->field)));
        }
    }

    void Seek()
    {
        const int field = m_field->currentData().toInt();
        m_hits = HitsOf(m_project, {m_what->text().trimmed(), m_by->text().trimmed(),
                                    field >= 0 ? std::optional(static_cast<Field>(field)) : std::nullopt,
                                    m_type->currentData().toString()});
        const QSignalBlocker quiet(m_rows);
        m_rows->clear();
        QList<QTreeWidgetItem*> rows;
        for (const Hit& hit : m_hits) {
            auto* const row = new QTreeWidgetItem(
                {OwnerName(m_project, hit.ref), FieldName(m_project, hit.ref), hit.before, hit.after});
            row->setCheckState(0, Qt::Checked);
            rows << row;
        }
        m_rows->addTopLevelItems(rows);
        Count();
    }

    void Count()
    {
        const std::size_t ticked = Ticked().size();
        m_count->setText(
            Caption(QT_TRANSLATE_NOOP("Desk", "%1 hits, %2 ticked")).arg(m_hits.size()).arg(ticked));
        m_do->setEnabled(ticked > 0);
    }

    const Project& m_project;
    QLineEdit* m_what;
    QLineEdit* m_by;
    QComboBox* m_field;
    QComboBox* m_type;
    QTreeWidget* m_rows;
    QLabel* m_count;
    QPushButton* m_do = nullptr;
    std::vector<Hit> m_hits;
};

}  // namespace

std::vector<Hit> HitsOf(const Project& project, const Sought& sought)
{
    std::vector<Hit> hits;
    const auto search = [&](const FieldRef& owner) {
        for (const FieldRef& ref : RefsOf(project, owner)) {
            const QString before = QString::fromStdString(TextAt(project, ref));
            if (sought.field.value_or(ref.field) != ref.field || sought.what.isEmpty() ||
                !before.contains(sought.what)) {
                continue;
            }
            const QString after = Replaced(before, sought);
            if (after != before && !(ref.field == Field::Name && after.isEmpty())) {
                hits.push_back({ref, before, after});
            }
        }
    };
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        if (sought.type.isEmpty() || LettersIn(project.beams[i].name) == sought.type) {
            search({false, i, Field::Name});
        }
    }
    for (std::size_t i = 0; sought.type.isEmpty() && i < project.walls.size(); ++i) {
        search({true, i, Field::Name});
    }
    return hits;
}

NewTexts AskReplace(QWidget& over, const Project& project, const std::optional<FieldRef>& from)
{
    ReplaceDialog dialog(over, project, from);
    return dialog.exec() == QDialog::Accepted ? dialog.Ticked() : NewTexts();
}

}  // namespace Desk
