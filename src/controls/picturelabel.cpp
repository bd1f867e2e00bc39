#include "controls/picturelabel.h"

#include "controls/pictures.h"

void PictureLabel::setPicture(const QString &path)
{
    m_path = path;
    m_ratio = devicePixelRatioF();
    setPixmap(Pictures::load(Pictures::kRoot + path, m_ratio));
}

void PictureLabel::paintEvent(QPaintEvent *event)
{
    if (!m_path.isEmpty() && m_ratio != devicePixelRatioF())
        setPicture(m_path);
    QLabel::paintEvent(event);
}
