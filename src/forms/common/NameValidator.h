#pragma once

#include <QString>
#include <QValidator>

namespace vypx {

/// Keeps what a Palm database name can't hold out of an edit: a reader of the file takes the
/// characters 32 to 126 and ends the name at any other. Such characters are left out of what is
/// typed or pasted, and told.
class NameValidator : public QValidator {
    Q_OBJECT

public:
    explicit NameValidator(QObject* owner);

    State validate(QString& text, int& cursor) const override;

signals:
    /// These were left out.
    void Dropped(const QString& characters) const;
};

/// The words that tell of it.
QString DroppedCharactersText(const QString& characters);

} // namespace vypx
