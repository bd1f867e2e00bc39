#pragma once

#include <optional>

#include <QWidget>

class CaptionLabel;
class QLabel;
class QLayout;
class QPainter;

/// A small note in the corner of the desktop, of one shape whatever it says: only a text of several lines makes it
/// taller. It never takes the focus and lets clicks through; the owner hides it.
class DesktopToast : public QWidget
{
    Q_OBJECT
public:
    explicit DesktopToast(QWidget *parent = nullptr);

    /// Shows a note, in place of the one before; a level, 0 to 1, as a bar below it.
    void showNote(const QString &title, const QString &text, std::optional<double> level = {});

    QString title() const;
    QString text() const;
    std::optional<double> level() const { return m_level; }

protected:
    /// For notes that are more than looked at.
    DesktopToast(QWidget *parent, Qt::WindowFlags flags);

    /// Puts something below the text.
    void addBelow(QLayout *part);

    void paintEvent(QPaintEvent *event) override;

private:
    void moveToCorner();

    void drawBar(QPainter &painter) const;

    CaptionLabel *m_title;
    QLabel *m_text;
    std::optional<double> m_level;
};
