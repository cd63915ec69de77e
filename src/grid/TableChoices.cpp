#include "grid/TableChoices.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <array>

#include "controls/DropDownList.h"
#include "controls/QuietLabel.h"
#include "controls/ScreenReader.h"

namespace penwright {
namespace {

constexpr int kMostSkipped = 1'000'000;

constexpr std::array kSeparators{TableSeparator::Tab, TableSeparator::Semicolon, TableSeparator::Comma,
                                 TableSeparator::Blanks};
constexpr std::array kDecimalSigns{'.', ','};

/// Where the vertical angles stand: an entry of the list that chooses it.
struct Direction {
    bool isList;
    bool verticalDown;

    bool operator==(const Direction &) const = default;
};

constexpr std::array kDirections{Direction{false, true}, Direction{false, false}, Direction{true, true},
                                 Direction{true, false}};
constexpr std::array kUnits{ValueUnit::Candela, ValueUnit::PerKilolumen, ValueUnit::Kilocandela,
                            ValueUnit::Millicandela};
constexpr std::array kThousandsSigns{kNoSign, '.', ',', '\'', ' '};

template <typename Values, typename Value>
int placeOf(const Values &values, Value value)
{
    return static_cast<int>(std::find(values.begin(), values.end(), value) - values.begin());
}

template <typename Values>
auto chosen(const Values &values, const QComboBox &list)
{
    return values.at(static_cast<std::size_t>(list.currentIndex()));
}

}  // namespace

TableChoices::TableChoices(QWidget *parent) : QWidget(parent)
{
    auto *form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_separator = addList(*form, "tableSeparator", "Between cells", {"Tab", "Semicolon", "Comma", "Blanks"});
    m_decimal = addList(*form, "tableDecimal", "Decimal sign", {"Point", "Comma"});
    m_thousands =
        addList(*form, "tableThousands", "Between thousands", {"Nothing", "Point", "Comma", "Apostrophe", "Blank"});
    m_skip = new QSpinBox;
    m_skip->setObjectName("tableSkip");
    m_skip->setAccessibleName("Lines to skip");
    m_skip->setRange(0, kMostSkipped);
    form->addRow("Lines to skip", m_skip);
    connect(m_skip, &QSpinBox::valueChanged, this, &TableChoices::changed);
    m_angleRow = addCheck(*form, "tableAngleRow", "First line holds angles");
    m_angleColumn = addCheck(*form, "tableAngleColumn", "First column holds angles");
    m_direction = addList(*form, "tableDirection", "Vertical angles",
                          {"Down the text", "Across the text", "First in a list", "Second in a list"});
    connect(m_direction, &QComboBox::currentIndexChanged, this, &TableChoices::offerAngles);
    m_unit =
        addList(*form, "tableUnit", "Values are", {"Candela", "Candela per kilolumen", "Kilocandela", "Millicandela"});
    m_unitNote = new QuietLabel;
    m_unitNote->setObjectName("tableUnitNote");
    m_unitNote->setWordWrap(true);
    form->addRow(m_unitNote);
}

QComboBox *TableChoices::addList(QFormLayout &form, const char *name, const QString &label, const QStringList &entries)
{
    auto *list = new DropDownList;
    list->setObjectName(name);
    list->setAccessibleName(label);
    list->addItems(entries);
    form.addRow(label, list);
    connect(list, &QComboBox::currentIndexChanged, this, &TableChoices::changed);
    return list;
}

QCheckBox *TableChoices::addCheck(QFormLayout &form, const char *name, const QString &text)
{
    auto *box = new QCheckBox(text);
    box->setObjectName(name);
    form.addRow(box);
    connect(box, &QCheckBox::toggled, this, &TableChoices::changed);
    return box;
}

void TableChoices::setReading(const TableReading &reading)
{
    const QSignalBlocker untold(this);
    m_separator->setCurrentIndex(placeOf(kSeparators, reading.separator));
    m_decimal->setCurrentIndex(placeOf(kDecimalSigns, reading.decimalSign));
    m_thousands->setCurrentIndex(placeOf(kThousandsSigns, reading.thousandsSign));
    m_skip->setValue(reading.linesToSkip);
    m_angleRow->setChecked(reading.hasAngleRow);
    m_angleColumn->setChecked(reading.hasAngleColumn);
    m_direction->setCurrentIndex(placeOf(kDirections, Direction{reading.isList, reading.verticalDown}));
    m_unit->setCurrentIndex(reading.unit == ValueUnit::Other ? -1 : placeOf(kUnits, reading.unit));
}

TableReading TableChoices::reading() const
{
    return {.separator = chosen(kSeparators, *m_separator),
            .decimalSign = chosen(kDecimalSigns, *m_decimal),
            .thousandsSign = chosen(kThousandsSigns, *m_thousands),
            .linesToSkip = m_skip->value(),
            .hasAngleRow = m_angleRow->isChecked(),
            .hasAngleColumn = m_angleColumn->isChecked(),
            .verticalDown = chosen(kDirections, *m_direction).verticalDown,
            .isList = chosen(kDirections, *m_direction).isList,
            .unit = m_unit->currentIndex() < 0 ? ValueUnit::Other : chosen(kUnits, *m_unit)};
}

/// A list has its angles where they are, in each line.
void TableChoices::offerAngles()
{
    const bool isTable = !chosen(kDirections, *m_direction).isList;
    m_angleRow->setEnabled(isTable);
    m_angleColumn->setEnabled(isTable);
}

void TableChoices::sayOfUnit(const QString &sentence)
{
    m_unitNote->setText(sentence);
    describe(*m_unit, sentence);
}

}  // namespace penwright
