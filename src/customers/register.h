// SPDX-License-Identifier: MIT
// The customers of the agent: listed, added, changed and deleted, without any window.
#pragma once

#include "widgets/progressbar.h"
#include "widgets/spreadmodel.h"

/// Columns of the list. Column 0 holds the key.
inline constexpr int PlaceColumn = 1;     ///< number of the row
inline constexpr int NameColumn = 2;      ///< a blank, then the name
inline constexpr int TelephoneColumn = 3; ///< "0", then the number as stored
inline constexpr int PercentColumn = 4;

/// A customer as the fields show him; each text is trimmed before it is stored.
struct Customer
{
    QString name;
    QString telephone;
    QString percent;
};

/// Columns of tblMember that can be changed for a customer.
inline constexpr QLatin1StringView TelephoneField("Mber");
inline constexpr QLatin1StringView PercentField("MPercen");

/// Fills the list, in Thai order, with the customers whose name holds @p part; "" lists all. Gives
/// how many they are.
int listCustomers(SpreadModel &list, const QString &part, ProgressBar &progress);

/// Number of customers of that name, letters without regard to case. The name goes into the
/// statement as it stands: an apostrophe in it breaks the statement, which raises DatabaseFailure.
int countCustomersNamed(const QString &name);

/// Adds a customer under the next key.
void addCustomer(const Customer &customer);

/// Changes one column of a customer, to the trimmed @p text.
void changeCustomer(qint32 key, const QString &column, const QString &text);

/// True if a line of this draw, in the book or laid off, names the customer.
bool hasLines(qint32 key);

/// Deletes a customer. The caller has to make sure that he has no lines.
void deleteCustomer(qint32 key);

/// Takes out the characters that names must not hold: "'", "%" and "*".
QString cleanedName(QString name);
