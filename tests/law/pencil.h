// SPDX-License-Identifier: MIT
// The book kept a second time with a pencil: what keyed lines put on a ticket, tickets into the
// book and cuts out of it, by the rules of the trade. It shares no code with the program.
#pragma once

#include <QStringList>

#include <array>
#include <map>
#include <vector>

inline constexpr size_t PencilColumns = 8; ///< one for each class, in the order of the boards

/// Whole baht as written on paper: "1,050", nothing for 0.
QString pencilled(qint64 amount);

/// A ticket: the numbers of each class with their money, the newest on top.
class PencilSlip
{
public:
    /// Writes down what a line keyed under the kind of that caption asks for. False: refused.
    bool key(const QString &caption, const QString &line);

    QStringList rows() const; ///< as rowsOf() gives those of a ticket
    std::array<qint64, PencilColumns> totals() const;

    struct Row
    {
        QString number;
        qint64 amount;
    };
    std::array<std::vector<Row>, PencilColumns> columns;
    bool topShown = false; ///< the side to look at after the last line that was taken
};

struct PencilLine
{
    int customer;
    size_t column;
    QString number;
    qint64 amount;
};

/// The book of one draw and the money cut out of it; lines by their key.
class PencilBook
{
public:
    void file(const PencilSlip &slip, int customer);
    void cut(int key, qint64 amount);
    void remove(int key) { lines.erase(key); }

    /// Keys of the lines on a number, the one with the most money first.
    std::vector<int> keysOn(size_t column, const QString &number) const;

    /// Rows of a board as "12|1,050", " hot" behind a halved one, heaviest first; of one customer unless 0.
    QStringList board(size_t column, const QStringList &hot, int customer) const;
    qint64 total(size_t column, int customer) const;

    std::map<int, PencilLine> lines;
    std::map<int, PencilLine> cuts;

private:
    QString spelling(size_t column, const QString &number) const;
};

/// The lines as statements read them: "key customer digits side kind number money".
QStringList toTexts(const std::map<int, PencilLine> &lines);
