#pragma once

#include <QLabel>

/// A label with a picture that stays sharp when its window goes to a screen of another scale.
class PictureLabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

    /// The picture at @p path of the resource folder; none when there is no such picture.
    void setPicture(const QString &path);

    /// Shows a picture that is higher than @p points as high as that: its upper and its lower edge stay as drawn.
    void setPictureHeight(int points);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_path;
    int m_height = 0;  ///< in points; 0 for the picture's own
    qreal m_ratio = 0; ///< that the picture was loaded for
};
