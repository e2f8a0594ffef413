#pragma once

#include "AppKit/TextRows.h"

#include <QAbstractListModel>
#include <QItemSelection>
#include <QSize>

// The rows of a text for a list. The list sees what comes when publish() is called, so that adding
// a line costs nothing on the screen.
class TextListModel : public QAbstractListModel {
public:
    // Every row has the same height, which spares the list from asking for each.
    explicit TextListModel(int rowHeight);

    const TextRows& rows() const { return m_rows; }
    void clear();
    void append(std::string_view text) { m_rows.append(text); }
    int rowHeight() const { return m_rowSize.height(); }

    // Whether that cut the text anew.
    bool wrapAt(std::size_t columns);

    // Whether there was anything to show.
    bool publish();

    std::string_view textOf(const QItemSelectionRange& range) const;

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    TextRows m_rows;
    int m_published = 0;
    const QSize m_rowSize;
};
