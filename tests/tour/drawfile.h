// SPDX-License-Identifier: MIT
// A draw as a text file: what is keyed, and what must come out. The files in draws/ say in their
// heads how they are written.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

struct DrawMember
{
    QString name;
    QString telephone;
    QString percent;
};

struct DrawLine
{
    QString kind;    ///< caption of the kind
    QString text;    ///< as keyed
    QString refusal; ///< words of the box that must answer it, or empty
};

struct DrawTicket
{
    QString customer;
    QList<DrawLine> lines;
    QString total;    ///< of the ticket, as shown
    QString discount; ///< money, as shown
    QStringList rows; ///< "class number amount" of every grid row, parted by tabs
};

/// A board of the whole book, as shown.
struct DrawBoard
{
    QString caption;
    QString rows;
    QString total;
    QString estimate;
    QStringList heavy; ///< "number amount" of its first rows, with "hot" behind, parted by tabs
};

/// A row of the risk scan.
struct DrawRisk
{
    QString side; ///< "บน" or "ล่าง"
    QString row;  ///< "type number related", parted by tabs
};

struct Draw
{
    QList<DrawMember> members;
    QStringList hotNumbers; ///< in the order entered
    QList<DrawTicket> tickets;
    QList<DrawBoard> boards; ///< after all tickets
    QList<DrawRisk> risks;   ///< after all tickets
    QString book;   ///< "lines money discounts" of the Ledger after all tickets, parted by tabs
    QString result; ///< seventeen digits
    QStringList winners; ///< cells of every winning row, parted by tabs
    QString payout;      ///< to all winners, as shown
    QString profit;      ///< as shown

    /// Reads a draw; ends the program with a message when the file cannot be read.
    static Draw read(const QString &path);
};
