#include "hostbench/FileReview.h"

#include <algorithm>

#include "review/Photometry.h"
#include "review/Remarks.h"

namespace penwright {

namespace {

void findLargest(const PhotometricRecord &record, FileReview &review)
{
    if (record.Candela.rows() == 0 || record.Candela.columns() == 0)
        return;
    double largest = record.Candela(1, 1);
    for (int h = 1; h <= record.Candela.rows(); ++h) {
        const auto row = record.Candela.row(h);
        const auto place = std::max_element(row.begin(), row.end());
        if (*place <= largest)
            continue;
        largest = *place;
        review.largestHorizontal = h;
        review.largestVertical = static_cast<int>(place - row.begin()) + 1;
    }
}

}  // namespace

FileReview fileReview(const PhotometricRecord &record)
{
    FileReview review;
    const Photometry photometry = photometryOf(record);
    review.figures = figuresOf(record, photometry);
    review.remarks = remarksOf(record, photometry);
    findLargest(record, review);
    return review;
}

}  // namespace penwright
