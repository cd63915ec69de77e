#include "pages/candela/CandelaNumbers.h"

#include <algorithm>
#include <utility>

namespace penwright {
namespace {

template <typename Cell>
std::size_t bytesOf(const OneBasedTable<Cell> &cells)
{
    return static_cast<std::size_t>(cells.rows()) * static_cast<std::size_t>(cells.columns()) * sizeof(Cell);
}

std::size_t bytesOf(const OneBased<float> &angles)
{
    return static_cast<std::size_t>(angles.size()) * sizeof(float);
}

/// What the working record takes over when the table is built.
void swapBuilt(PhotometricRecord &one, PhotometricRecord &other)
{
    std::swap(one.NumHorzAngles, other.NumHorzAngles);
    std::swap(one.NumVertAngles, other.NumVertAngles);
    std::swap(one.PhotometricType, other.PhotometricType);
    std::swap(one.HorAngles, other.HorAngles);
    std::swap(one.VertAngles, other.VertAngles);
    std::swap(one.Candela, other.Candela);
}

}  // namespace

CandelaNumbers::Angles::Angles(const PhotometricRecord &record)
    : type(record.PhotometricType), horizontal(record.HorAngles), vertical(record.VertAngles)
{
    horizontal.resize(record.NumHorzAngles);
    vertical.resize(record.NumVertAngles);
}

bool CandelaNumbers::isFor(const PhotometricRecord &record) const
{
    const auto isOf = [](const OneBased<float> &angles, int count, const OneBased<float> &own) {
        return count == own.size() && count <= angles.size() && std::equal(own.begin(), own.end(), angles.begin());
    };
    return record.PhotometricType == m_angles.type &&
           isOf(record.HorAngles, record.NumHorzAngles, m_angles.horizontal) &&
           isOf(record.VertAngles, record.NumVertAngles, m_angles.vertical);
}

/// Cells one by one, each with the number that it gets.
class CandelaNumbers::SingleCells : public GridContent {
public:
    SingleCells(CandelaNumbers &numbers, std::vector<Cell> cells) : m_numbers(numbers), m_cells(std::move(cells)) {}

    void swap() override
    {
        for (Cell &cell : m_cells) {
            std::swap(m_numbers.m_cells(cell.h, cell.v), cell.value);
            m_numbers.keep(cell.h, cell.v);
        }
    }

    std::size_t bytes() const override { return sizeof(*this) + m_cells.capacity() * sizeof(Cell); }

private:
    CandelaNumbers &m_numbers;
    std::vector<Cell> m_cells;
};

/// All cells, of which the first ones in reading order are new.
class CandelaNumbers::PastedTable : public GridContent {
public:
    PastedTable(CandelaNumbers &numbers, OneBasedTable<CandelaCell> cells, int pasted)
        : m_numbers(numbers), m_cells(std::move(cells)), m_pasted(pasted)
    {
    }

    void swap() override
    {
        std::swap(m_numbers.m_cells, m_cells);
        for (int h = 1; h <= m_cells.rows(); ++h)
            for (int v = 1; v <= m_cells.columns() && (v - 1) * m_cells.rows() + h <= m_pasted; ++v)
                m_numbers.keep(h, v);
    }

    std::size_t bytes() const override { return sizeof(*this) + bytesOf(m_cells); }

private:
    CandelaNumbers &m_numbers;
    OneBasedTable<CandelaCell> m_cells;
    int m_pasted;
};

/// A table of the angles that a record has, and the working record that goes with it.
class CandelaNumbers::NewTable : public GridContent {
public:
    NewTable(CandelaNumbers &numbers, const PhotometricRecord &from) : m_numbers(numbers), m_angles(from)
    {
        takeCounts(from);
        m_cells.reset(from.NumHorzAngles, from.NumVertAngles);
        if (m_numbers.m_flags.GridStarted)
            keepWhatFits();
    }

    NewTable(CandelaNumbers &numbers, const PhotometricRecord &from, OneBasedTable<CandelaCell> cells)
        : m_numbers(numbers), m_angles(from), m_cells(std::move(cells))
    {
        takeCounts(from);
        for (int h = 1; h <= m_cells.rows(); ++h)
            for (int v = 1; v <= m_cells.columns(); ++v)
                m_work.Candela(h, v) = numberOf(m_cells(h, v)).value_or(0);
    }

    void swap() override
    {
        OneBased<PhotometricRecord> &work = m_numbers.m_state.CandelaWorkRecord;
        const bool hasTable = m_numbers.m_cells.rows() > 0;
        if (!hasTable)
            m_numbers.noteAngles();
        if (work.empty())
            work.reset(1);
        swapBuilt(work(1), m_work);
        if (!m_numbers.m_flags.GridStarted) {
            PhotometricRecord fresh;
            swapBuilt(fresh, work(1));
            work(1) = std::move(fresh);
        }
        std::swap(m_numbers.m_angles, m_angles);
        std::swap(m_numbers.m_cells, m_cells);
        m_numbers.giveAngles();
        m_numbers.m_flags.GridReady = std::exchange(m_isThere, hasTable);
        m_numbers.m_flags.GridStarted = m_numbers.m_flags.GridReady;
    }

    std::size_t bytes() const override
    {
        return sizeof(*this) + bytesOf(m_cells) + bytesOf(m_work.Candela) + bytesOf(m_angles.horizontal) +
               bytesOf(m_angles.vertical) + bytesOf(m_work.HorAngles) + bytesOf(m_work.VertAngles);
    }

private:
    void takeCounts(const PhotometricRecord &from)
    {
        m_work.NumHorzAngles = from.NumHorzAngles;
        m_work.NumVertAngles = from.NumVertAngles;
        m_work.PhotometricType = from.PhotometricType;
        m_work.HorAngles = m_angles.horizontal;
        m_work.VertAngles = m_angles.vertical;
        m_work.Candela.reset(from.NumHorzAngles, from.NumVertAngles);
    }

    void keepWhatFits()
    {
        const OneBasedTable<double> none;
        const OneBased<PhotometricRecord> &work = m_numbers.m_state.CandelaWorkRecord;
        const OneBasedTable<double> &kept = work.empty() ? none : work(1).Candela;
        for (int h = 1; h <= m_cells.rows(); ++h)
            for (int v = 1; v <= m_cells.columns(); ++v) {
                if (h <= kept.rows() && v <= kept.columns())
                    m_work.Candela(h, v) = kept(h, v);
                m_cells(h, v) = m_work.Candela(h, v);
            }
    }

    CandelaNumbers &m_numbers;
    Angles m_angles;
    PhotometricRecord m_work;
    OneBasedTable<CandelaCell> m_cells;
    bool m_isThere = true;  ///< whether there is a table once this one is, or is not any more
};

std::unique_ptr<GridContent> CandelaNumbers::withCells(std::vector<Cell> cells)
{
    return std::make_unique<SingleCells>(*this, std::move(cells));
}

std::unique_ptr<GridContent> CandelaNumbers::withFirst(OneBasedTable<CandelaCell> cells, int count)
{
    return std::make_unique<PastedTable>(*this, std::move(cells), count);
}

std::unique_ptr<GridContent> CandelaNumbers::ofAngles(const PhotometricRecord &from)
{
    return std::make_unique<NewTable>(*this, from);
}

std::unique_ptr<GridContent> CandelaNumbers::ofAnglesAndCells(const PhotometricRecord &from,
                                                              OneBasedTable<CandelaCell> cells)
{
    return std::make_unique<NewTable>(*this, from, std::move(cells));
}

/// Keeps, while there is no table, the angles that the record has, for the time when there is none again.
void CandelaNumbers::noteAngles()
{
    m_angles = {};
    if (m_state.PhotFiles.empty())
        return;
    const PhotometricRecord &record = m_state.PhotFiles(1);
    if (record.NumHorzAngles >= 0 && record.NumVertAngles >= 0)
        m_angles = Angles(record);
}

/// Gives the record the type, counts and angles that the table is of; it has others where the table comes back from
/// before it was built anew.
void CandelaNumbers::giveAngles()
{
    if (m_state.PhotFiles.empty() || isFor(m_state.PhotFiles(1)))
        return;
    PhotometricRecord &record = m_state.PhotFiles(1);
    record.PhotometricType = m_angles.type;
    record.NumHorzAngles = static_cast<std::int16_t>(m_angles.horizontal.size());
    record.NumVertAngles = static_cast<std::int16_t>(m_angles.vertical.size());
    record.HorAngles = m_angles.horizontal;
    record.VertAngles = m_angles.vertical;
}

/// Has the working record follow a cell.
void CandelaNumbers::keep(int h, int v)
{
    // The host may have put a record of another size in the place of the working one.
    if (m_state.CandelaWorkRecord.empty())
        return;
    OneBasedTable<double> &kept = m_state.CandelaWorkRecord(1).Candela;
    if (h <= kept.rows() && v <= kept.columns())
        kept(h, v) = numberOf(m_cells(h, v)).value_or(0);
}

}  // namespace penwright
