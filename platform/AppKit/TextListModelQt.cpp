#include "AppKit/TextListModelQt.h"

TextListModel::TextListModel(int rowHeight)
    : m_rowSize(0, rowHeight)
{
}

void TextListModel::clear()
{
    beginResetModel();
    m_rows.clear();
    m_published = 0;
    endResetModel();
}

bool TextListModel::wrapAt(std::size_t columns)
{
    if (columns == m_rows.columns())
        return false;
    beginResetModel();
    m_rows.wrapAt(columns);
    m_published = 0;
    endResetModel();
    return true;
}

bool TextListModel::publish()
{
    const int count = int(m_rows.count());
    if (count == m_published)
        return false;
    beginInsertRows({}, m_published, count - 1);
    m_published = count;
    endInsertRows();
    return true;
}

std::string_view TextListModel::textOf(const QItemSelectionRange& range) const
{
    return m_rows.rows(std::size_t(range.top()), std::size_t(range.bottom()));
}

int TextListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_published;
}

QVariant TextListModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::SizeHintRole)
        return m_rowSize;
    if (role != Qt::DisplayRole)
        return {};
    const std::string_view row = m_rows.row(std::size_t(index.row()));
    return QString::fromUtf8(row.data(), qsizetype(row.size()));
}
