#pragma once

#include <functional>
#include <vector>

#include <QPointer>

class QKeySequence;
class ZelmarKeySequenceEdit;

/// The fields for hot keys of all pages: a combination stands in one of them only. The fields' pages outlive nothing of
/// it; a field that is gone counts no more.
class KeyFields
{
public:
    void add(ZelmarKeySequenceEdit *field);
    void remove(ZelmarKeySequenceEdit *field);

    /// To be called when a field was filled. Where another one has its combination, @p tell tells so, and returns when
    /// the user has read it; then the field is emptied.
    void settle(ZelmarKeySequenceEdit *field, const std::function<void()> &tell);

    /// The system keeps a registered combination from the field that wants to capture it, so whoever hears one hands it
    /// on here. True when that used it up: a field has it now, or a conflict is told of, during which the key may be
    /// held down still and comes again and again.
    bool take(const QKeySequence &key);

private:
    bool isUsedElsewhere(const ZelmarKeySequenceEdit *field) const;

    std::vector<QPointer<ZelmarKeySequenceEdit>> m_fields;
    bool m_isTelling = false;
};
