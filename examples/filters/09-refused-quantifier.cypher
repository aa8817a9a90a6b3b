shipment.weight > 10 AND all(step IN shipment.route WHERE step.cleared)
