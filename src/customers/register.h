// SPDX-License-Identifier: MIT
// Lists, adds, changes and deletes customers.
#pragma once

#include "widgets/progressbar.h"
#include "widgets/spreadmodel.h"

/// Columns of the list. Column 0 has the key.
inline constexpr int PlaceColumn = 1;     ///< row number
inline constexpr int NameColumn = 2;      ///< a space, then the name
inline constexpr int TelephoneColumn = 3; ///< "0", then the number as stored
inline constexpr int PercentColumn = 4;

/// The values of a new customer. Texts are trimmed before they are stored.
struct Customer
{
    QString name;
    QString telephone;
    QString percent;
};

/// Columns that changeCustomer() can change.
inline constexpr QLatin1StringView TelephoneField("Mber");
inline constexpr QLatin1StringView PercentField("MPercen");

/// Fills the list with the customers whose name contains @p part, in Thai order, and returns their
/// number. "" lists all customers; "_" and "%" are LIKE wildcards. Customer "-" is not listed.
int listCustomers(SpreadModel &list, const QString &part, ProgressBar &progress);

/// Returns the number of customers with that name, case-insensitive. The name is inserted into the
/// SQL text as it is: an apostrophe in it usually throws DatabaseFailure, with which the program ends.
int countCustomersNamed(const QString &name);

/// Adds a customer with the next key.
void addCustomer(const Customer &customer);

/// Sets a column of a customer to @p text, trimmed.
void changeCustomer(qint32 key, const QString &column, const QString &text);

/// Returns true if the customer has bets in this draw, kept or laid off.
bool hasLines(qint32 key);

/// Deletes a customer, who must not have any bets: see hasLines().
void deleteCustomer(qint32 key);

/// Returns a name without the characters that must not be in names: "'", "%" and "*".
QString cleanedName(QString name);
