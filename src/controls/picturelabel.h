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

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_path;
    qreal m_ratio = 0; ///< that the picture was loaded for
};
